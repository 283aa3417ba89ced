#include "motor/window/map_cursor.h"

#include <QPainter>
#include <QPixmap>

namespace motor {

namespace {

// Cursors that the toolkit does not have and that are drawn here.
constexpr int kMagnify = -1;
constexpr int kReduce = -2;

struct Row {
  int number;
  int shape;
};

constexpr Row kToolCursors[] = {
    {tools::kSelect, Qt::ArrowCursor}, {tools::kGrabber, Qt::OpenHandCursor}, {tools::kZoomIn, kMagnify},
    {tools::kZoomOut, kReduce},        {tools::kInfo, Qt::WhatsThisCursor},   {tools::kLabel, Qt::PointingHandCursor},
    {tools::kRuler, Qt::CrossCursor},  {tools::kDragMap, Qt::DragCopyCursor},
};

constexpr Row kButtonCursors[] = {
    {0, Qt::ArrowCursor},     {1, Qt::IBeamCursor},          {2, Qt::CrossCursor},    {3, Qt::CrossCursor},
    {4, Qt::WaitCursor},      {128, Qt::PointingHandCursor}, {129, kMagnify},         {130, kReduce},
    {131, Qt::SizeAllCursor}, {132, Qt::OpenHandCursor},     {133, Qt::SplitHCursor}, {134, Qt::PointingHandCursor},
    {135, Qt::CrossCursor},   {137, Qt::WhatsThisCursor},    {138, Qt::CrossCursor},  {139, Qt::ForbiddenCursor},
};

template <std::size_t N>
int shapeIn(const Row (&rows)[N], int number) {
  for (const Row& row : rows) {
    if (row.number == number) return row.shape;
  }
  return Qt::ArrowCursor;
}

QCursor magnifier(bool plus) {
  QPixmap picture(24, 24);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const auto& [colour, extra] : {std::pair(QColor(Qt::white), 2.0), std::pair(QColor(30, 34, 40), 0.0)}) {
    painter.setPen(QPen(colour, 3 + extra, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(14.5, 14.5), QPointF(20.5, 20.5));
    painter.setPen(QPen(colour, 1.6 + extra, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QPointF(9.5, 9.5), 6.5, 6.5);
    painter.drawLine(QPointF(6.5, 9.5), QPointF(12.5, 9.5));
    if (plus) painter.drawLine(QPointF(9.5, 6.5), QPointF(9.5, 12.5));
  }
  return QCursor(picture, 9, 9);
}

}  // namespace

QCursor cursorFor(const Tool& tool) {
  const int shape = tool.command != 0 ? shapeIn(kToolCursors, tool.command) : shapeIn(kButtonCursors, tool.cursor);
  if (shape == kMagnify || shape == kReduce) return magnifier(shape == kMagnify);
  return QCursor(static_cast<Qt::CursorShape>(shape));
}

}  // namespace motor

#include "chart_sheet.h"

#include <QTextOption>

#include "golden_file.h"
#include "motor/drawing/fonts.h"

namespace {

constexpr int kGap = 6;  // pixels between cells
constexpr int kShadeStep = 15;
constexpr QColor kCaption(70, 76, 84);

QSize roomOf(QSize cell, ChartSheet::Captions captions, int captionRoom) {
  return captions == ChartSheet::Captions::left ? cell + QSize(captionRoom, 0) : cell + QSize(0, captionRoom);
}

}  // namespace

void expectDrawing(const QImage& picture, const std::string& name) {
  pictures::expectPicture(picture, std::filesystem::path(VELDORIA_DRAWINGS) / (name + ".png"), kShadeStep);
}

ChartSheet::ChartSheet(int cells, int columns, QSize cell, Captions captions, int captionRoom, double devicePixelRatio)
    : columns_(columns), cell_(cell), captions_(captions), captionRoom_(captionRoom) {
  const QSize room = roomOf(cell, captions, captionRoom) + QSize(kGap, kGap);
  const int rows = (cells + columns - 1) / columns;
  const QSize size(kGap + columns * room.width(), kGap + rows * room.height());
  picture_ = QImage(size * devicePixelRatio, QImage::Format_RGB32);
  picture_.setDevicePixelRatio(devicePixelRatio);
  picture_.fill(Qt::white);
}

QRectF ChartSheet::place(int number) const {
  const QSize room = roomOf(cell_, captions_, captionRoom_) + QSize(kGap, kGap);
  const QPoint corner(kGap + number % columns_ * room.width(), kGap + number / columns_ * room.height());
  const QPoint own = captions_ == Captions::left ? QPoint(captionRoom_, 0) : QPoint(0, captionRoom_);
  return {corner + own, cell_};
}

void ChartSheet::add(const QString& caption, const std::function<void(QPainter&, const QRectF&)>& paint) {
  const QRectF cell = place(added_++);
  QPainter painter(&picture_);
  painter.setFont(motor::toQFont({"Verdana", 0, 7.5, 0, motor::kTransparent}));
  painter.setPen(kCaption);
  const QRectF words = captions_ == Captions::left
                           ? QRectF(cell.left() - captionRoom_, cell.top(), captionRoom_ - kGap, cell.height())
                           : QRectF(cell.left(), cell.top() - captionRoom_, cell.width(), captionRoom_);
  const QTextOption alignment(captions_ == Captions::left ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignCenter);
  painter.drawText(words, caption, alignment);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.save();
  paint(painter, cell);
  painter.restore();
}

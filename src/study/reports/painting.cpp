#include "study/reports/painting.h"

#include <QFont>
#include <QPainterPath>
#include <cmath>

namespace study::reports {

namespace {

constexpr double kNoLigatures = 1.0 / 64;  // the least that the toolkit tells from none

class Painting {
 public:
  explicit Painting(QPainter& painter) : painter_(painter), scale_(painter.device()->logicalDpiX() / 72.0) {}

  void operator()(const TextMark& mark) const {
    QFont font(kTypeface);
    font.setPointSizeF(mark.style.size);
    font.setBold(mark.style.isBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Letters that are set apart are never joined: a reader who copies or searches "fi" finds two letters.
    font.setLetterSpacing(QFont::AbsoluteSpacing, kNoLigatures);
    painter_.setFont(font);
    painter_.setPen(colour(mark.style.colour));
    painter_.drawText(mark.at * scale_, QString::fromStdString(mark.text));
  }

  void operator()(const ShapeMark& mark) const {
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const QPolygonF& line : mark.lines) {
      path.addPolygon(onDevice(line));
      if (mark.isClosed) path.closeSubpath();
    }
    use(mark.fill, mark.stroke);
    painter_.drawPath(path);
  }

  void operator()(const DiscMark& mark) const {
    use(mark.fill, mark.stroke);
    painter_.drawEllipse(mark.centre * scale_, mark.radius * scale_, mark.radius * scale_);
  }

 private:
  static QColor colour(int colour) { return QColor::fromRgb(static_cast<QRgb>(colour)); }

  void use(std::optional<int> fill, const std::optional<Stroke>& stroke) const {
    painter_.setBrush(fill ? QBrush(colour(*fill)) : QBrush(Qt::NoBrush));
    if (!stroke) {
      painter_.setPen(Qt::NoPen);
      return;
    }
    QPen pen(colour(stroke->colour), stroke->width * scale_, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (stroke->isDashed) pen.setDashPattern({4, 3});
    painter_.setPen(pen);
  }

  // On whole dots of the device: finer than anyone sees, and a third of the file's size.
  [[nodiscard]] QPolygonF onDevice(const QPolygonF& line) const {
    QPolygonF dots;
    for (const QPointF point : line) {
      const QPointF dot(std::round(point.x() * scale_), std::round(point.y() * scale_));
      if (dots.isEmpty() || dots.last() != dot) dots.append(dot);
    }
    return dots;
  }

  QPainter& painter_;
  double scale_;
};

}  // namespace

void paint(const Page& page, QPainter& painter) {
  const Painting painting(painter);
  for (const Mark& mark : page.marks()) std::visit(painting, mark);
}

}  // namespace study::reports

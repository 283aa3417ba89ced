#include "motor/window/printing/north_arrow.h"

#include <QPolygonF>

#include "motor/drawing/halo_text.h"
#include "motor/window/lettering.h"

namespace motor {

namespace {

constexpr double kLetterHeight = 11;  // pixels
constexpr double kTip = 8;            // of the arrow, above the middle
constexpr double kFoot = 14;          // below it
constexpr double kNotch = 8.5;
constexpr double kHalfWidth = 7;

}  // namespace

void paintNorthArrow(QPainter& painter, QPointF centre, double degrees) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(centre);
  painter.rotate(degrees);
  const QPolygonF left{QPointF(0, -kTip), QPointF(-kHalfWidth, kFoot), QPointF(0, kNotch)};
  const QPolygonF right{QPointF(0, -kTip), QPointF(kHalfWidth, kFoot), QPointF(0, kNotch)};
  const QPolygonF whole{QPointF(0, -kTip), QPointF(kHalfWidth, kFoot), QPointF(0, kNotch), QPointF(-kHalfWidth, kFoot)};
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, 3.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolygon(whole);
  painter.setPen(QPen(kInk, 0.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::white);
  painter.drawPolygon(right);
  painter.setBrush(kInk);
  painter.drawPolygon(left);
  Font font;
  font.name = "Tahoma";
  font.style = 1;  // bold
  font.fore = (kInk.red() << 16) + (kInk.green() << 8) + kInk.blue();
  const HaloText letter({QStringLiteral("N")}, font, kLetterHeight);
  letter.paint(painter, {-letter.size().width() / 2, -kTip - 1 - letter.size().height()}, Qt::AlignLeft);
  painter.restore();
}

}  // namespace motor

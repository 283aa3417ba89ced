#include "hosts/desktop/views/link_label.h"

#include <QPainter>

#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/views/text_fit.h"

namespace desktop {
namespace {

struct Colors {
  QColor text, hoverText, hoverBack;
};

Colors colorsOf(screen::LabelLook look) {
  switch (look) {
    case screen::LabelLook::menu:
      return {QColor(0xE9, 0xEE, 0xF6), Qt::white, QColor(255, 255, 255, 36)};
    case screen::LabelLook::menuEntry:
      return {theme::kInk, theme::kNavy, theme::kNavyTint};
    case screen::LabelLook::link:
    case screen::LabelLook::text:
      break;
  }
  return {theme::kNavy, theme::kAccent, Qt::transparent};
}

constexpr int kEntryInset = 10;
constexpr int kMenuInset = 5;

}  // namespace

LinkLabel::LinkLabel(screen::LabelLook look, QWidget& parent) : PointedButton(parent), look_(look) {
  setCursor(Qt::PointingHandCursor);
}

void LinkLabel::setCaption(const QString& caption) {
  caption_ = caption.trimmed();
  update();
}

// A menu entry reaches down to the pop-up frame below it; its light stays a little inside.
QRect LinkLabel::lightRect() const {
  return look_ == screen::LabelLook::menu ? rect().adjusted(0, scaled(kMenuInset), 0, -scaled(kMenuInset)) : rect();
}

void LinkLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const Colors colors = colorsOf(look_);
  const bool lit = isLit() || isDown();
  if (lit) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.hoverBack);
    painter.drawRoundedRect(QRectF(lightRect()), theme::kRadius, theme::kRadius);
  }
  const bool entry = look_ == screen::LabelLook::menuEntry;
  const QRect inside = entry ? rect().adjusted(scaled(kEntryInset), 0, -scaled(kEntryInset), 0) : rect();
  const FittedText fitted = fitText(caption_, font(), inside.size());
  painter.setFont(fitted.font);
  painter.setPen(!isEnabled() ? theme::kMuted : lit ? colors.hoverText : colors.text);
  const auto horizontal = entry ? Qt::AlignLeft : Qt::AlignHCenter;
  painter.drawText(inside, static_cast<int>(Qt::AlignVCenter) | static_cast<int>(horizontal) | Qt::TextWordWrap,
                   fitted.text);
  if (hasRing()) theme::paintFocusRing(painter, lightRect());
}

}  // namespace desktop

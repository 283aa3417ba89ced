#include "hosts/desktop/views/plain_label.h"

#include <QPainter>

#include "hosts/desktop/theme.h"
#include "hosts/desktop/views/text_fit.h"

namespace desktop {
namespace {

Qt::Alignment alignmentOf(const forms::Label& label) {
  switch (label.alignment) {
    case forms::Alignment::right:
      return Qt::AlignRight;
    case forms::Alignment::centre:
      return Qt::AlignHCenter;
    case forms::Alignment::left:
      break;
  }
  return Qt::AlignLeft;
}

}  // namespace

PlainLabel::PlainLabel(const forms::Label& label, QWidget& parent) : QLabel(&parent), label_(label) {
  setTextFormat(Qt::PlainText);
}

void PlainLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (label_.backColor) painter.fillRect(rect(), theme::color(*label_.backColor));
  const FittedText fitted = fitText(text(), font(), size());
  setToolTip(fitted.isCut ? text() : QString::fromStdString(label_.toolTipText));
  painter.setFont(fitted.font);
  painter.setPen(label_.foreColor ? theme::color(*label_.foreColor) : theme::kInk);
  const Qt::Alignment alignment = Qt::AlignVCenter | alignmentOf(label_);
  painter.drawText(rect(), static_cast<int>(alignment.toInt()) | Qt::TextWordWrap, fitted.text);
}

}  // namespace desktop

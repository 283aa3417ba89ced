#include "hosts/desktop/views/text_fit.h"

#include <QFontMetrics>
#include <QRect>

#include "hosts/desktop/drawn_size.h"

namespace desktop {
namespace {

constexpr int kSmallestPixels = 9;

bool fits(const QString& text, const QFont& font, QSize box) {
  const QFontMetrics metrics(font);
  const QRect needed = metrics.boundingRect(QRect(QPoint(), box), Qt::AlignLeft | Qt::TextWordWrap, text);
  return needed.width() <= box.width() && needed.height() <= box.height();
}

}  // namespace

FittedText fitText(const QString& text, const QFont& font, QSize box) {
  FittedText result{font, text};
  while (!fits(text, result.font, box)) {
    if (result.font.pixelSize() <= scaled(kSmallestPixels)) {
      result.text = QFontMetrics(result.font).elidedText(text, Qt::ElideRight, box.width());
      result.isCut = result.text != text;
      return result;
    }
    result.font.setPixelSize(result.font.pixelSize() - 1);
  }
  return result;
}

}  // namespace desktop

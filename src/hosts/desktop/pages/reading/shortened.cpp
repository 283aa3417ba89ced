#include "hosts/desktop/pages/reading/shortened.h"

namespace desktop::pages {

QString shortened(const QString& text, qsizetype most) {
  if (text.size() <= most) return text;
  const bool isHalf = most > 0 && text[most - 1].isHighSurrogate();
  return text.first(isHalf ? most - 1 : most);
}

}  // namespace desktop::pages

#include "motor/drawing/wrapped_text.h"

#include <algorithm>

namespace motor {

namespace {

constexpr qsizetype kFirstLetters = 64;

// How many letters of a word go into the room, at least one; a pair of surrogates stays together.
qsizetype fittingLetters(const QString& word, const QFontMetricsF& metrics, double room) {
  qsizetype fits = 1;
  qsizetype tooMany = 2;
  while (tooMany <= word.size() && metrics.horizontalAdvance(word.left(tooMany)) <= room) {
    fits = tooMany;
    tooMany *= 2;
  }
  tooMany = std::min(tooMany, word.size() + 1);
  while (tooMany - fits > 1) {
    const qsizetype middle = (fits + tooMany) / 2;
    (metrics.horizontalAdvance(word.left(middle)) <= room ? fits : tooMany) = middle;
  }
  if (fits < word.size() && word[fits].isLowSurrogate()) fits += fits > 1 ? -1 : 1;
  return fits;
}

bool isWiderThan(const QString& text, const QFontMetricsF& metrics, double room) {
  // Of a very long text its first letters tell already.
  for (qsizetype some = kFirstLetters; some < text.size(); some *= 2) {
    if (metrics.horizontalAdvance(text.left(some)) > room) return true;
  }
  return metrics.horizontalAdvance(text) > room;
}

}  // namespace

QStringList wrappedText(const QString& text, const QFontMetricsF& metrics, double room, double widestWord) {
  QStringList lines;
  for (const QString& paragraph : text.split('\n')) {
    QString line;
    for (QString word : paragraph.split(' ')) {
      const QString longer = line.isEmpty() ? word : line + ' ' + word;
      if (line.isEmpty() || !isWiderThan(longer, metrics, room)) {
        line = longer;
      } else {
        lines.append(line);
        line = word;
      }
      while (isWiderThan(line, metrics, widestWord)) {
        const qsizetype letters = fittingLetters(line, metrics, widestWord);
        if (letters >= line.size()) break;
        lines.append(line.left(letters));
        line = line.mid(letters);
      }
    }
    lines.append(line);
  }
  return lines;
}

}  // namespace motor

#include "study/reports/type.h"

#include <QFont>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QString>
#include <QStringList>
#include <algorithm>

#include "study/model/study_error.h"

namespace study::reports {

namespace {

// Large enough for widths that hinting does not change.
constexpr int kMeasuredSize = 1'000;

QFontMetricsF metrics(bool isBold) {
  QFont font(kTypeface);
  font.setPixelSize(kMeasuredSize);
  font.setBold(isBold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return QFontMetricsF(font);
}

// Without control characters. A number stays with its percent sign.
QString decoded(std::string_view text) {
  QString result = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  for (QChar& character : result) {
    if (character.category() == QChar::Other_Control) character = QLatin1Char(' ');
  }
  return result.replace(QLatin1String(" %"), QString(QChar::Nbsp) + QLatin1Char('%'));
}

QStringList wordsOf(const QString& text) { return text.split(QLatin1Char(' '), Qt::SkipEmptyParts); }

// The most characters of the text's beginning that fit, by bisection; at least one where there is one.
std::size_t fitting(const QString& text, double width, const TextStyle& style, const QString& ending = {}) {
  qsizetype fits = 1;
  qsizetype tooMany = text.size() + 1;
  while (tooMany - fits > 1) {
    const qsizetype middle = (fits + tooMany) / 2;
    (textWidth((text.left(middle) + ending).toStdString(), style) <= width ? fits : tooMany) = middle;
  }
  if (fits < text.size() && fits > 1 && text[fits - 1].isHighSurrogate()) --fits;
  return static_cast<std::size_t>(std::min(fits, text.size()));
}

}  // namespace

void requireTypeface() {
  if (QFontInfo(QFont(kTypeface)).family() == kTypeface) return;
  throw StudyError(std::string("the typeface of the reports, ") + kTypeface +
                   ", is not installed; install the package fonts-dejavu-core");
}

double textWidth(std::string_view text, const TextStyle& style) {
  return metrics(style.isBold).horizontalAdvance(decoded(text)) * style.size / kMeasuredSize;
}

std::vector<std::string> wrapped(std::string_view text, double width, const TextStyle& style) {
  std::vector<std::string> lines;
  std::string line;
  const auto finish = [&] {
    if (!line.empty()) lines.push_back(std::move(line));
    line.clear();
  };
  for (QString word : wordsOf(decoded(text))) {
    if (!line.empty() && textWidth(line + " " + word.toStdString(), style) <= width) {
      line += " " + word.toStdString();
      continue;
    }
    finish();
    while (textWidth(word.toStdString(), style) > width && word.size() > 1) {
      const auto fits = static_cast<qsizetype>(fitting(word, width, style));
      if (fits >= word.size()) break;
      lines.push_back(word.left(fits).toStdString());
      word = word.mid(fits);
    }
    line = word.toStdString();
  }
  finish();
  return lines;
}

std::string shortened(std::string_view text, double width, const TextStyle& style) {
  const QString whole = decoded(text).trimmed();
  if (textWidth(whole.toStdString(), style) <= width) return whole.toStdString();
  const QString ellipsis = QString::fromUtf8("…");
  const auto fits = static_cast<qsizetype>(fitting(whole, width, style, ellipsis));
  return (whole.left(fits).trimmed() + ellipsis).toStdString();
}

double widestWord(std::string_view text, const TextStyle& style) {
  double widest = 0;
  for (const QString& word : wordsOf(decoded(text))) {
    widest = std::max(widest, textWidth(word.toStdString(), style));
  }
  return widest;
}

}  // namespace study::reports

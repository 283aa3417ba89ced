#include "motor/drawing/wrapped_text.h"

#include <gtest/gtest.h>

#include <QFont>

namespace motor {
namespace {

QFontMetricsF metrics() {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(12);
  return QFontMetricsF(font);
}

TEST(WrappedText, BreaksAtBlanks) {
  const QString text = QStringLiteral("uno dos tres cuatro cinco seis");
  const QStringList lines = wrappedText(text, metrics(), 80, 200);
  EXPECT_GT(lines.size(), 2);
  EXPECT_EQ(lines.join(' '), text);
  for (const QString& line : lines) EXPECT_LE(metrics().horizontalAdvance(line), 80) << line.toStdString();
}

TEST(WrappedText, KeepsLineEndsAndWordsThatAreNotFarTooWide) {
  EXPECT_EQ(wrappedText("uno\n\ndos", metrics(), 500, 500), (QStringList{"uno", "", "dos"}));
  EXPECT_EQ(wrappedText("a electroencefalografista b", metrics(), 60, 400),
            (QStringList{"a", "electroencefalografista", "b"}));
  EXPECT_EQ(wrappedText("", metrics(), 10, 10), QStringList{""});
}

TEST(WrappedText, BreaksAWordThatIsFarTooWideAndLosesNoLetter) {
  const QString word(100'000, 'm');
  const QStringList lines = wrappedText(word, metrics(), 100, 300);
  EXPECT_EQ(lines.join(""), word);
  for (const QString& line : lines) EXPECT_LE(metrics().horizontalAdvance(line), 300);
}

TEST(WrappedText, NoRoomTakesALetterALine) { EXPECT_EQ(wrappedText("abc", metrics(), 0, 0).size(), 3); }

}  // namespace
}  // namespace motor

#include "hosts/desktop/pages/text_search.h"

#include <gtest/gtest.h>

#include <QTextDocument>

namespace desktop::pages {
namespace {

// The texts that are found.
QStringList found(const char* text, const char* words, std::size_t most = 100) {
  QTextDocument document;
  document.setPlainText(QString::fromUtf8(text));
  QStringList all;
  for (const Match& match : matchesOf(document, QString::fromUtf8(words), most)) {
    all += document.toRawText().mid(match.position, match.length);
  }
  return all;
}

TEST(TextSearch, CaseAndMissingAccentsDoNotMatter) {
  EXPECT_EQ(found("Población, POBLACIÓN y poblacion", "poblacion"),
            QStringList({"Población", "POBLACIÓN", "poblacion"}));
  EXPECT_EQ(found("Año ano ANO", "ano"), QStringList({"Año", "ano", "ANO"}));
  EXPECT_EQ(found("Año ano", "año"), QStringList("Año"));
  EXPECT_EQ(found("pingüino", "PINGUINO"), QStringList("pingüino"));
}

TEST(TextSearch, BlanksAndBrokenWordsMatch) {
  EXPECT_EQ(found("Tasa\u00A0bruta\nTasa bruta", "tasa bruta").size(), 2);
  EXPECT_EQ(found("pala\u200Bbra", "palabra").size(), 1);
  EXPECT_EQ(found("uno\ndos", "uno dos"), QStringList());
}

TEST(TextSearch, SignsStandForThemselves) {
  EXPECT_EQ(found("100.000 100x000 (a) a|b [x] \\d 5%", "100.000"), QStringList("100.000"));
  for (const char* words : {"(a)", "a|b", "[x]", "\\d", "5%", "."})
    EXPECT_GE(found("100.000 (a) a|b [x] \\d 5%", words).size(), 1) << words;
  EXPECT_EQ(found("😀 a", "😀").size(), 1);
}

TEST(TextSearch, NothingIsFoundForNothing) {
  EXPECT_EQ(found("uno", ""), QStringList());
  EXPECT_EQ(found("uno dos", " "), QStringList());
  EXPECT_EQ(found("", "a"), QStringList());
}

TEST(TextSearch, EndsAtSoMany) { EXPECT_EQ(found("aaaaaaaaaa", "a", 4).size(), 4); }

}  // namespace
}  // namespace desktop::pages

#include "hosts/desktop/pages/copied_text.h"

#include <gtest/gtest.h>

#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include "hosts/desktop/pages/reading/page_text.h"

namespace desktop::pages {
namespace {

class CopiedText : public ::testing::Test {
 protected:
  void show(const char* page) { document.setHtml(readPage(page).html); }
  [[nodiscard]] QTextCursor between(const char* first, const char* last) const {
    QTextCursor cursor = document.find(QString::fromUtf8(first));
    const int begin = cursor.selectionStart();
    cursor.setPosition(document.find(QString::fromUtf8(last)).selectionEnd());
    const int end = cursor.position();
    cursor.setPosition(begin);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    return cursor;
  }
  [[nodiscard]] std::string all() const {
    QTextCursor cursor(const_cast<QTextDocument*>(&document));
    cursor.select(QTextCursor::Document);
    return copiedText(cursor).toStdString();
  }
  [[nodiscard]] std::string copied(const char* first, const char* last) const {
    return copiedText(between(first, last)).toStdString();
  }

  QTextDocument document;
};

constexpr auto kTable =
    "<p>Antes<table><caption>Título</caption><tr><th rowspan=2>Provincia<th colspan=2>Tasa <br>bruta<tr><th>H<th>M"
    "<tr><td nowrap>Mar y Sol<td>1.234,5<td><table><tr><td>7<td>8</table></table><p>Después&nbsp;de <b>esto</b>";

TEST_F(CopiedText, TablesKeepTheirColumns) {
  show(kTable);
  EXPECT_EQ(all(), "Antes\nTítulo\nProvincia\tTasa bruta\t\n\tH\tM\nMar y Sol\t1.234,5\t7 8\nDespués de esto");
}

TEST_F(CopiedText, SomeCellsAreATableToo) {
  show(kTable);
  EXPECT_EQ(copied("H", "1.234,5"), "H\n1.234,5") << "of the columns between them";
  EXPECT_EQ(copied("Mar", "1.234,5"), "Mar y Sol\t1.234,5");
}

TEST_F(CopiedText, ASelectionOutOfATableTakesItsRows) {
  show(kTable);
  EXPECT_EQ(copied("1.234,5", "Después"), "Provincia\tTasa bruta\t\n\tH\tM\nMar y Sol\t1.234,5\t7 8\nDespués");
}

TEST_F(CopiedText, PartsOfACellOrAParagraphAreText) {
  show(kTable);
  EXPECT_EQ(copied("Mar", "y"), "Mar y");
  EXPECT_EQ(copied("esp", "esto"), "espués de esto");
  EXPECT_EQ(copiedText(QTextCursor(&document)), "");
}

TEST_F(CopiedText, WhatOnlyHoldsThePageTogetherIsLeftOut) {
  show(
      "<style>th{min-width:5em}</style><h1 style='border-bottom:1px solid'>Uno</h1><hr><p>Dos<img src=a.png alt=x>"
      "<table><tr><th>Una cabecera<td>1</table>");
  EXPECT_EQ(all(), "Uno\nDos\nUna cabecera\t1");
}

}  // namespace
}  // namespace desktop::pages

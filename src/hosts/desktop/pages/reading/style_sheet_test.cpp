#include "hosts/desktop/pages/reading/style_sheet.h"

#include <gtest/gtest.h>

namespace desktop::pages {
namespace {

QString shown(const Declarations& declarations) {
  QStringList all;
  for (const Declaration& each : declarations) {
    all.append(each.property + u'=' + each.value + (each.isImportant ? QLatin1String("!") : QLatin1String("")));
  }
  return all.join(u' ');
}

struct Case {
  const char* text;
  const char* shown;
};

TEST(Declarations, AreReadButForThoseOfOneProgram) {
  for (const Case& each : {
           Case{"", ""},
           Case{"Color:red; background : blue ;", "color=red background=blue"},
           Case{"mso-number-format:\"0\\;a\";color:red;mso-style-parent:style0", "color=red"},
           Case{"border:.5pt solid windowtext;mso-ignore:padding", "border=.5pt solid windowtext"},
           Case{"font-family:\"a;b\", 'c:d';x", "font-family=\"a;b\", 'c:d'"},
           Case{"color:red !important;a:b!x", "color=red! a=b!x"},
           Case{"a:'b", "a='b"},
           Case{";;:;a:;", "= a="},
       }) {
    EXPECT_EQ(shown(declarationsFrom(QString::fromUtf8(each.text))), each.shown) << each.text;
  }
}

// The element that the page's last tag begins.
const Node& lastOf(const PageTree& tree) {
  const Node* node = tree.html.get();
  while (!node->children.empty() && node->children.back()->tag != Tag::text) node = node->children.back().get();
  return *node;
}

QString holding(const char* css, const char* html) {
  StyleSheet sheet;
  sheet.add(QString::fromUtf8(css));
  const PageTree tree = treeOf(QString::fromUtf8(html));
  QStringList all;
  for (const Declarations* each : sheet.declarationsFor(lastOf(tree))) all.append(shown(*each));
  return all.join(u' ');
}

TEST(StyleSheet, HoldsForElementsClassesAndIdentifiers) {
  constexpr auto kCell = "<table class='Una dos'><tr><td id=c class='xl24 otro'>";
  for (const Case& each : {
           Case{"td{a:b}", "a=b"},
           Case{"th{a:b}", ""},
           Case{"*{a:b}", "a=b"},
           Case{".xl24{a:b}", "a=b"},
           Case{".XL24{a:b}", "a=b"},
           Case{".xl2{a:b}", ""},
           Case{"td.xl24.otro{a:b}", "a=b"},
           Case{"th.xl24{a:b}", ""},
           Case{"#c{a:b}", "a=b"},
           Case{"table td{a:b}", "a=b"},
           Case{"table > td{a:b}", ""},
           Case{"table>tr>td{a:b}", "a=b"},
           Case{".una .otro{a:b}", "a=b"},
           Case{"p,td,b{a:b}", "a=b"},
           Case{"td:hover,td[x],td + td,td ~ td,o\\:p,td >{a:b}", ""},
           Case{"td{a:1}.xl24{a:2}#c{a:3}td.xl24{a:4}td{a:5}", "a=1 a=5 a=2 a=4 a=3"},
       }) {
    EXPECT_EQ(holding(each.text, kCell), each.shown) << each.text;
  }
  EXPECT_EQ(holding("a:link{a:b}a:hover{c:d}", "<a href=x>"), "a=b");
}

TEST(StyleSheet, PassesOverMarksCommentsAndOtherMedia) {
  for (const Case& each : {
           Case{"<!-- td{a:b} -->", "a=b"},
           Case{"<!--table\n\t{mso-x:\"\\,\";\n\tmso-y:\"\\.\";}\ntd {a:b}\n-->", "a=b"},
           Case{"/* td{c:d} */td{a:/**/b}", "a=b"},
           Case{"@page{margin:1in}@media print{td{c:d}}@media screen{td{a:b}}", "a=b"},
           Case{"@import url(x.css);td{a:b}", "a=b"},
           Case{"@font-face{a:c}td{a:b}", "a=b"},
           Case{"}td{a:b}", "a=b"},
           Case{"td{a:b", "a=b"},
           Case{"td", ""},
           Case{"td{x:'}'}td{a:b}", "x='}' a=b"},
       }) {
    EXPECT_EQ(holding(each.text, "<table><td>"), each.shown) << each.text;
  }
}

TEST(StyleSheet, GarbageIsReadInTime) {
  for (const char* part : {"{", "}", "@media screen{", "a{", "a,", "a b>", "'", "/*", "td{a:b}", "\\", ".a", "*"}) {
    StyleSheet sheet;
    sheet.add(QString::fromLatin1(part).repeated(100000));
    EXPECT_LE(sheet.size(), 3000U) << part;
  }
}

}  // namespace
}  // namespace desktop::pages

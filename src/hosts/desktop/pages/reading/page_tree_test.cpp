#include "hosts/desktop/pages/reading/page_tree.h"

#include <gtest/gtest.h>

namespace desktop::pages {
namespace {

const char* nameOf(Tag tag) {
  switch (tag) {
    case Tag::a:
      return "a";
    case Tag::b:
      return "b";
    case Tag::br:
      return "br";
    case Tag::body:
      return "body";
    case Tag::caption:
      return "caption";
    case Tag::col:
      return "col";
    case Tag::colgroup:
      return "colgroup";
    case Tag::dd:
      return "dd";
    case Tag::div:
      return "div";
    case Tag::dl:
      return "dl";
    case Tag::dt:
      return "dt";
    case Tag::leftOut:
      return "leftOut";
    case Tag::li:
      return "li";
    case Tag::p:
      return "p";
    case Tag::section:
      return "section";
    case Tag::table:
      return "table";
    case Tag::tbody:
      return "tbody";
    case Tag::td:
      return "td";
    case Tag::tr:
      return "tr";
    case Tag::ul:
      return "ul";
    default:
      return "?";
  }
}

QString shown(const Node& node) {
  if (node.tag == Tag::text) return u'\'' + node.text + u'\'';
  QStringList children;
  for (const auto& child : node.children) children.append(shown(*child));
  return QLatin1String(nameOf(node.tag)) + u'(' + children.join(u' ') + u')';
}

struct Case {
  const char* html;
  const char* tree;
};

TEST(PageTree, IsMadeOfWhatThePageHolds) {
  for (const Case& each : {
           Case{"", "body()"},
           Case{"<html><head><title>T</title></head><body><p>a</p></body></html>", "body(p('a'))"},
           Case{"<p>a<p>b<div>c</div>", "body(p('a') p('b') div('c'))"},
           Case{"<ul><li>a<li>b<ul><li>c</ul><li>d</ul>", "body(ul(li('a') li('b' ul(li('c'))) li('d')))"},
           Case{"<dl><dt>a<dd>b<dt>c</dl>", "body(dl(dt('a') dd('b') dt('c')))"},
           Case{"a<br>b</br>c</p>d", "body('a' br() 'b' br() 'c' 'd')"},
           Case{"<o:p>a</o:p><x>b</x>", "body('a' 'b')"},
           Case{"<a>a<a>b</a>", "body(a('a') a('b'))"},
           Case{"<div><b>a</div>b</b>", "body(div(b('a')) 'b')"},
           Case{"<script>a</script>b<object><p>c</object>d", "body(leftOut() 'b' leftOut(p('c')) 'd')"},
       }) {
    EXPECT_EQ(shown(treeOf(QString::fromUtf8(each.html)).body()).toStdString(), each.tree) << each.html;
  }
}

TEST(PageTree, TablesHoldRowsAndRowsHoldCells) {
  for (const Case& each : {
           Case{"<table><tr><td>a<td>b<tr><td>c</table>d", "body(table(tr(td('a') td('b')) tr(td('c'))) 'd')"},
           Case{"<table><td>a<tbody><td>b</table>", "body(table(tr(td('a')) tbody(tr(td('b')))))"},
           Case{"<table> <col><tr> <td>a</td> </tr></table>", "body(table(col() tr(td('a'))))"},
           Case{"<table><colgroup><col><col><tr><td>a", "body(table(colgroup(col() col()) tr(td('a'))))"},
           Case{"<table><caption>a<tr><td>b", "body(table(caption('a') tr(td('b'))))"},
           Case{"<table><tr>a<td>b</table>", "body('a' table(tr(td('b'))))"},
           Case{"<table><div><tr><td>b</div>c</table>", "body(div() table(tr(td('b' 'c'))))"},
           Case{"<td>a</td><tr>b", "body(section('a') 'b')"},
           Case{"<table><tr><td><table><tr><td>a</table>b", "body(table(tr(td(table(tr(td('a'))) 'b'))))"},
           Case{"<div><table><tr><td></div>a", "body(div(table(tr(td('a')))))"},
       }) {
    EXPECT_EQ(shown(treeOf(QString::fromUtf8(each.html)).body()).toStdString(), each.tree) << each.html;
  }
}

TEST(PageTree, HasTitleStylesAndSheets) {
  const PageTree tree = treeOf(
      u"<title> \n </title><title> Una\n  tabla </title><title>Otra</title><style><!-- a --></style>"
      u"<link rel=File-List href=a.xml><link rel=Stylesheet href=hoja.css><link rel=stylesheet media=print href=b.css>"
      u"<html lang=es><body bgcolor=red><body bgcolor=blue text=x>");
  EXPECT_EQ(tree.title, "Una tabla");
  EXPECT_EQ(tree.styles, "<!-- a -->\n");
  EXPECT_EQ(tree.sheets, QStringList("hoja.css"));
  EXPECT_EQ(tree.body().attribute(QLatin1String("bgcolor")), "red");
  EXPECT_EQ(tree.body().attribute(QLatin1String("text")), "x");
  EXPECT_EQ(tree.html->attribute(QLatin1String("lang")), "es");
  EXPECT_FALSE(tree.body().has(QLatin1String("link")));
}

TEST(PageTree, TablesAreNestedSoFar) {
  TreeLimits limits;
  limits.tables = 1;
  EXPECT_EQ(shown(treeOf(u"<table><tr><td><table><tr><td>a<td>b</table>c<td>d", limits).body()),
            "body(table(tr(td(section(section('a') section('b')) 'c') td('d'))))");
}

TEST(PageTree, SoManyTablesStandInOthers) {
  TreeLimits limits;
  limits.nestedTables = 1;
  EXPECT_EQ(shown(treeOf(u"<table><td><table><td>a</table><table><td>b</table></table><table><td>c", limits).body())
                .toStdString(),
            "body(table(tr(td(table(tr(td('a'))) section(section('b'))))) table(tr(td('c'))))");
}

TEST(PageTree, ElementsAreNestedSoFar) {
  TreeLimits limits;
  limits.depth = 4;
  EXPECT_EQ(shown(treeOf(u"<div><b><b>a<b>b</b>c", limits).body()), "body(div(b('a' 'b') 'c'))");
  const PageTree deep = treeOf(QStringLiteral("<div>").repeated(100000));
  int depth = 0;
  for (const Node* node = &deep.body(); !node->children.empty(); node = node->children.front().get()) ++depth;
  EXPECT_LT(depth, 80);
}

TEST(PageTree, TooMuchIsCutOff) {
  TreeLimits limits;
  limits.characters = 4;
  const PageTree letters = treeOf(u"<p>abc<p>def<p>ghi", limits);
  EXPECT_TRUE(letters.isCut);
  EXPECT_EQ(shown(letters.body()), "body(p('abc') p('d'))");
  limits = {};
  limits.cells = 2;
  EXPECT_TRUE(treeOf(u"<table><td>1<td>2<td>3", limits).isCut);
  EXPECT_FALSE(treeOf(u"<table><td>1<td>2", limits).isCut);
  limits = {};
  limits.nodes = 3;
  EXPECT_TRUE(treeOf(u"<br><br><br>", limits).isCut);
}

TEST(PageTree, GarbageGivesATreeInTime) {
  for (const char* part : {"<table>", "<td>", "<tr>", "<table><tr>x", "<li>", "<p>", "<b>x", "</b>", "<a>", "<object>",
                           "<dl><dt>", "<caption>", "<table><caption>", "<div></p>", "<colgroup><col>"}) {
    EXPECT_NE(treeOf(QString::fromLatin1(part).repeated(30000)).html, nullptr) << part;
  }
}

}  // namespace
}  // namespace desktop::pages

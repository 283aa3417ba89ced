#include "hosts/desktop/pages/reading/page_styles.h"

#include <gtest/gtest.h>

#include <functional>

namespace desktop::pages {
namespace {

// The style of the element that the page's last tag begins, with the styles of all that it stands in.
PageStyle styleIn(const char* css, const char* html) {
  PageStyles styles;
  styles.add(QString::fromUtf8(css));
  const PageTree tree = treeOf(QString::fromUtf8(html));
  PageStyle style;
  const Node* node = tree.html.get();
  for (;;) {
    style = styles.styleOf(*node, style);
    if (node->children.empty() || node->children.back()->tag == Tag::text) return style;
    node = node->children.back().get();
  }
}

PageStyle styleOf(const char* own) { return styleIn("", ("<div style='" + QByteArray(own) + "'>").constData()); }

TEST(PageStyles, BordersOfHalfAPointAreLines) {
  const PageStyle style = styleOf("border:.5pt solid windowtext;border-left:none;border-top:1.5pt dashed red");
  EXPECT_EQ(style.border[kRight], (Border{1, LineStyle::solid, QColor(0, 0, 0)}));
  EXPECT_EQ(style.border[kTop], (Border{2, LineStyle::dashed, QColor(255, 0, 0)}));
  EXPECT_FALSE(style.border[kLeft].isSeen());
  EXPECT_TRUE(style.hasBorder());
  EXPECT_FALSE(styleOf("border:none").hasBorder());
  EXPECT_FALSE(styleOf("border:0 solid red").hasBorder());
}

TEST(PageStyles, PartsOfBordersAreJoined) {
  const PageStyle style = styleOf("border-width:1px 2px;border-style:solid;border-color:red;border-bottom-width:3px");
  EXPECT_EQ(style.border[kTop], (Border{1, LineStyle::solid, QColor(255, 0, 0)}));
  EXPECT_EQ(style.border[kRight].pixels, 2);
  EXPECT_EQ(style.border[kBottom].pixels, 3);
  EXPECT_TRUE(styleOf("border-style:solid").hasBorder());
}

TEST(PageStyles, SidesAreToldByOneToFourValues) {
  const auto padding = [](const char* own) { return styleOf(own).padding; };
  EXPECT_EQ(padding("padding:1px"), (Sides<double>{1, 1, 1, 1}));
  EXPECT_EQ(padding("padding:1px 2px"), (Sides<double>{1, 2, 1, 2}));
  EXPECT_EQ(padding("padding:1px 2px 3px"), (Sides<double>{1, 2, 3, 2}));
  EXPECT_EQ(padding("padding:1px 2px 3px 4px"), (Sides<double>{1, 2, 3, 4}));
  EXPECT_EQ(padding("padding:1px 2px 3px 4px 5px"), (Sides<double>{}));
  EXPECT_EQ(padding("padding-left:2em;font-size:20px"), (Sides<double>{0, 0, 0, 40}));
  EXPECT_EQ(padding("padding:-5px"), (Sides<double>{}));
  const PageStyle centred = styleOf("margin:0 auto");
  EXPECT_EQ(centred.margin[kLeft].unit, Length::Unit::automatic);
  EXPECT_TRUE(centred.margin[kTop].isPixels());
}

TEST(PageStyles, FontsAreReadFromAllTheirWords) {
  const TextStyle text = styleOf("font:italic bold 12pt/14pt \"Times New Roman\", serif").text;
  EXPECT_TRUE(text.isItalic);
  EXPECT_EQ(text.weight, 700);
  EXPECT_DOUBLE_EQ(text.pixels, 16);
  EXPECT_EQ(text.families, "Times New Roman,serif");
  EXPECT_EQ(styleOf("font-family:a\"><script>,b").text.families, "ascript,b");
  EXPECT_DOUBLE_EQ(styleOf("font-size:200%").text.pixels, 28);
  EXPECT_DOUBLE_EQ(styleOf("font-size:9999px").text.pixels, 120);
  EXPECT_DOUBLE_EQ(styleOf("font-size:.0001pt").text.pixels, 8);
  EXPECT_EQ(styleOf("font-weight:600").text.weight, 600);
}

TEST(PageStyles, WhatTextsLookLikeIsHandedOnAndBoxesAreNot) {
  const PageStyle inner =
      styleIn("div{color:red;text-align:right;padding:5px;background:silver;width:50%}", "<div><p>");
  EXPECT_EQ(inner.text.color, QColor(255, 0, 0));
  EXPECT_EQ(inner.align, Align::right);
  EXPECT_EQ(inner.padding[kLeft], 0);
  EXPECT_FALSE(inner.background.isValid());
  EXPECT_EQ(inner.width.unit, Length::Unit::automatic);
}

TEST(PageStyles, TheMoreExactAndTheImportantCountMore) {
  EXPECT_EQ(styleIn("p{color:red !important} .a{color:blue}", "<p class=a style='color:lime'>").text.color,
            QColor(255, 0, 0));
  EXPECT_EQ(styleIn(".a{color:blue} p{color:red}", "<p class=a>").text.color, QColor(0, 0, 255));
  EXPECT_EQ(styleIn("p{color:red}", "<p style='color:lime'>").text.color, QColor(0, 255, 0));
  EXPECT_EQ(styleIn("td{text-align:left}", "<table><td align=right>").align, Align::left);
  EXPECT_EQ(styleIn("td{text-align:general}", "<table><td align=right>").align, Align::right);
}

TEST(PageStyles, AttributesAreStylesByAnotherName) {
  const PageStyle cell = styleIn(
      "", "<table border=1 cellpadding=4><td bgcolor=navy width='25%' height=30 valign=top nowrap align=center>");
  EXPECT_EQ(cell.background, QColor(0, 0, 128));
  EXPECT_EQ(cell.width.unit, Length::Unit::percent);
  EXPECT_EQ(cell.height, 30);
  EXPECT_EQ(cell.vertical, VerticalAlign::top);
  EXPECT_EQ(cell.whiteSpace, WhiteSpace::nowrap);
  EXPECT_EQ(cell.align, Align::center);
  EXPECT_EQ(cell.padding, (Sides<double>{4, 4, 4, 4}));
  EXPECT_TRUE(cell.hasBorder());
  EXPECT_FALSE(styleIn("", "<table border=0><td>").hasBorder());
  EXPECT_TRUE(styleIn("", "<table border><td>").hasBorder());

  const TextStyle font = styleIn("", "<font size=+1 color=c00000 face='Arial,Helvetica'>").text;
  EXPECT_DOUBLE_EQ(font.pixels, 18);
  EXPECT_EQ(font.color, QColor(0xC0, 0, 0));
  EXPECT_EQ(font.families, "Arial,Helvetica");
  EXPECT_EQ(styleIn("", "<table align=center>").margin[kRight].unit, Length::Unit::automatic);
  EXPECT_EQ(styleIn("", "<ol type=I>").mark, ListMark::capitalRoman);
}

TEST(PageStyles, RowsHandTheirPlaceOnToCells) {
  EXPECT_EQ(styleIn("", "<table><tr valign=bottom><td>").vertical, VerticalAlign::bottom);
  EXPECT_EQ(styleIn("", "<table><tr><td>").vertical, VerticalAlign::middle);
  EXPECT_EQ(styleIn("", "<center><table><tr><td>").align, Align::left);
}

TEST(PageStyles, LinksLookLikeLinks) {
  EXPECT_TRUE(styleIn("", "<a href=x>").text.isUnderlined);
  EXPECT_FALSE(styleIn("", "<a name=x>").text.isUnderlined);
  EXPECT_FALSE(styleIn("a:link{text-decoration:none}", "<a href=x>").text.isUnderlined);
}

TEST(PageStyles, NonsenseChangesNothing) {
  const PageStyle plain = styleOf("");
  for (const char* own : {"color:nix", "font-size:-3px", "font-size:big", "width:x", "border:", "padding:a b",
                          "text-align:up", "line-height:-1", "vertical-align:12", "white-space:x", "list-style:y",
                          "margin", "x:y", "font:", "font:bold"}) {
    const PageStyle style = styleOf(own);
    EXPECT_EQ(style.text.pixels, plain.text.pixels) << own;
    EXPECT_EQ(style.text.color, plain.text.color) << own;
    EXPECT_EQ(style.align, plain.align) << own;
    EXPECT_EQ(style.padding, plain.padding) << own;
    EXPECT_EQ(style.lineHeight, plain.lineHeight) << own;
    EXPECT_FALSE(style.hasBorder()) << own;
  }
}

TEST(PageStyles, CellsThatLookAlikeInAllButWhatTheyStandInAreToldApart) {
  const PageTree tree = treeOf(
      u"<table><tr><td>1<td>2<td class=a>3<tr class=b><td>4<td style='color:#0000ff'>5<tbody id=c><tr><td>6</table>");
  PageStyles styles;
  styles.add(u"td { color: #000001 } td.a { color: #000002 } tr.b td { color: #000003 } #c td { color: #000004 }");
  QStringList colors;
  const std::function<void(const Node&, const PageStyle&)> visit = [&](const Node& node, const PageStyle& outer) {
    if (node.tag == Tag::text) return;
    const PageStyle style = styles.styleOf(node, outer);
    if (node.tag == Tag::td) colors += style.text.color.name().last(2);
    for (const auto& child : node.children) visit(*child, style);
  };
  visit(tree.body(), {});
  EXPECT_EQ(colors.join(u' ').toStdString(), "01 01 02 03 ff 04");
  styles.add(u"td { color: #000009 }");
  colors.clear();
  visit(tree.body(), {});
  EXPECT_EQ(colors.join(u' ').toStdString(), "09 09 02 03 ff 04");
}

TEST(PageStyles, CellsOfRowsInAnotherStyleAreToldApart) {
  const PageTree tree = treeOf(u"<table><tr><td>1");
  const Node& cell = *tree.body().children[0]->children[0]->children[0];
  ASSERT_EQ(cell.tag, Tag::td);
  PageStyles styles;
  PageStyle outer;
  outer.text.color = QColor(1, 2, 3);
  EXPECT_EQ(styles.styleOf(cell, outer).text.color, outer.text.color);
  outer.text.color = QColor(4, 5, 6);
  EXPECT_EQ(styles.styleOf(cell, outer).text.color, outer.text.color);
}

}  // namespace
}  // namespace desktop::pages

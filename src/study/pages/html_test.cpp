#include "study/pages/html.h"

#include <gtest/gtest.h>

#include "study/pages/test_html.h"

namespace study::pages {
namespace {

TEST(Html, EscapesText) {
  EXPECT_EQ(escaped("Ñora & <Río> \"d'Arriba\""), "Ñora &amp; &lt;Río&gt; &quot;d&#39;Arriba&quot;");
  EXPECT_EQ(escaped(std::string_view("a\0b\x1F\tc\n", 7)), "a b \tc\n");
  EXPECT_EQ(element("td", "<5", "class=\"m\""), "<td class=\"m\">&lt;5</td>");
  EXPECT_EQ(element("p", ""), "<p></p>");
}

TEST(Html, PageIsCompleteInItself) {
  const std::string html = page("a < b", "p { margin: 0; }\n", "<p>text</p>\n");
  EXPECT_TRUE(html.starts_with("<!DOCTYPE html>\n<html lang=\"es\">"));
  EXPECT_NE(html.find("<meta charset=\"utf-8\">"), std::string::npos);
  EXPECT_NE(html.find("<title>a &lt; b</title>"), std::string::npos);
  EXPECT_EQ(faultOf(html), "");
}

TEST(Html, TitleNamesAFile) {
  EXPECT_EQ(fileNameTitle("Tasas, 1999, Ñora"), "Tasas, 1999, Ñora");
  EXPECT_EQ(fileNameTitle(R"(a\b/c:d*e?f"g<h>i|j)"), "a-b-c-d-e-f-g-h-i-j");
  EXPECT_EQ(fileNameTitle(" a.b. \n"), "a.b. -");
  EXPECT_EQ(fileNameTitle("..a. "), "a");
  EXPECT_EQ(fileNameTitle(". "), "");
}

TEST(Html, CheckerSeesFaults) {
  for (const char* bad : {"<p>a", "<p><b>a</p></b>", "a</p>", "<p>a & b</p>", "<p>a > b</p>", "<p"}) {
    EXPECT_NE(faultOf(bad), "") << bad;
  }
  EXPECT_EQ(faultOf("<p class=\"x\">a &amp; b<meta charset=\"u\"></p>"), "");
}

}  // namespace
}  // namespace study::pages

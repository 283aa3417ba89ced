#include "hosts/desktop/pages/reading/html_reader.h"

#include <gtest/gtest.h>

namespace desktop::pages {
namespace {

// Tokens in a row: "<p class=a>", "</p>", texts in brackets.
QString tokensOf(const QString& html) {
  HtmlReader reader(html);
  QString all;
  while (const auto token = reader.next()) {
    switch (token->kind) {
      case HtmlToken::Kind::start:
        all += u'<' + token->name;
        for (const Attribute& each : token->attributes) all += u' ' + each.name + u'=' + each.value;
        all += u'>';
        break;
      case HtmlToken::Kind::end:
        all += QStringLiteral("</") + token->name + u'>';
        break;
      case HtmlToken::Kind::text:
        all += u'[' + token->text + u']';
        break;
    }
  }
  return all;
}

struct Case {
  const char* html;
  const char* tokens;
};

TEST(HtmlReader, ReadsTagsTextsAndAttributes) {
  for (const Case& each : {
           Case{"", ""},
           Case{"<P Class=a>uno</P>", "<p class=a>[uno]</p>"},
           Case{"<td x:num=\"1.5\" nowrap width='50%' height = 17>", "<td x:num=1.5 nowrap= width=50% height=17>"},
           Case{"<br/><img src=a.png />", "<br><img src=a.png>"},
           Case{"<a href=\"a?b&amp;c\" href=otro>", "<a href=a?b&c>"},
           Case{"<o:p>&nbsp;</o:p>", "<o:p>[\u00A0]</o:p>"},
           Case{"a < b <3 <= c", "[a ][< b ][<3 ][<= c]"},
           Case{"<td class=xl24 align=right>1,2</td >", "<td class=xl24 align=right>[1,2]</td>"},
           Case{"<a href=a/b.html>", "<a href=a/b.html>"},
           Case{"<p =x>", "<p =x=>"},
       }) {
    EXPECT_EQ(tokensOf(QString::fromUtf8(each.html)), QString::fromUtf8(each.tokens)) << each.html;
  }
}

TEST(HtmlReader, LeavesOutCommentsConditionsAndScripts) {
  for (const Case& each : {
           Case{"a<!-- x > <p> -->b", "[a][b]"},
           Case{"a<!--[if gte mso 9]><xml><x:a/></xml><![endif]-->b", "[a][b]"},
           Case{"<![if !vml]><img src=a><![endif]>", "<img src=a>"},
           Case{"<!DOCTYPE html PUBLIC \"a\"><?xml:namespace prefix=o ?>b", "[b]"},
           Case{"<script>if (a < b) '</p>'</script>b", "<script>[]</script>[b]"},
           Case{"<xml><o:Author>x</o:Author></xml>b", "<xml>[]</xml>[b]"},
           Case{"a<!-->b<!--->c", "[a][b][c]"},
           Case{"a</ x>b</>c", "[a][b][c]"},
       }) {
    EXPECT_EQ(tokensOf(QString::fromUtf8(each.html)), QString::fromUtf8(each.tokens)) << each.html;
  }
}

TEST(HtmlReader, KeepsStylesAndTitlesWhole) {
  EXPECT_EQ(tokensOf("<STYLE><!-- td > p {a:b} --></Style>x"), "<style>[<!-- td > p {a:b} -->]</style>[x]");
  EXPECT_EQ(tokensOf("<title>A &lt; B <b></title>x"), "<title>[A < B <b>]</title>[x]");
}

TEST(HtmlReader, EveryCutPageIsRead) {
  const QString page = QStringLiteral(
      "<!DOCTYPE html><html><head><style><!-- td {x:y} --></style><title>T</title></head><body bgcolor='#fff'>"
      "<![if a]><td x:num=\"1\" nowrap>&nbsp;&#241;</td><!-- c --><script>a</script></body>");
  for (qsizetype length = 0; length <= page.size(); ++length) {
    const QString cut = page.first(length);
    HtmlReader reader(cut);
    int count = 0;
    while (reader.next()) ++count;
    EXPECT_LE(count, 30);
  }
}

TEST(HtmlReader, TakesTimeThatGrowsWithTheLengthAlone) {
  constexpr qsizetype kMany = 200000;
  for (const char* part : {"<", "<!--", "</", "<a ", "<script>", "<style>", "<x y='", "&#", "<xml", "=", "<?"}) {
    const QString html = QString::fromLatin1(part).repeated(kMany);
    HtmlReader reader(html);
    qsizetype count = 0;
    while (reader.next()) ++count;
    EXPECT_LE(count, kMany) << part;
  }
}

TEST(HtmlReader, TagsKeepALimitedNumberOfAttributes) {
  QString html = QStringLiteral("<p");
  for (int i = 0; i < 1000; ++i) html += QStringLiteral(" a%1=b").arg(i);
  HtmlReader reader(html);
  EXPECT_EQ(reader.next()->attributes.size(), 64U);
}

}  // namespace
}  // namespace desktop::pages

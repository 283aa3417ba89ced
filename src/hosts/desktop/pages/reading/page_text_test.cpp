#include "hosts/desktop/pages/reading/page_text.h"

#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <random>

#include "hosts/desktop/pages/reading/old_pages.h"
#include "hosts/desktop/pages/reading/page_tree.h"

namespace desktop::pages {
namespace {

// A page in the toolkit's own document.
class Shown {
 public:
  explicit Shown(const QByteArray& page, double zoom = 1) : page_(readPage(page, zoom)) {
    document_.setHtml(page_.html);
  }

  [[nodiscard]] const PageText& page() const { return page_; }
  [[nodiscard]] std::string text() const { return document_.toPlainText().toStdString(); }
  [[nodiscard]] const QTextTable* table() const {
    for (const QTextFrame* frame : document_.rootFrame()->childFrames()) {
      if (const auto* table = qobject_cast<const QTextTable*>(frame)) return table;
    }
    return nullptr;
  }
  [[nodiscard]] QTextTableCellFormat format(int row, int column) const {
    return table()->cellAt(row, column).format().toTableCellFormat();
  }
  [[nodiscard]] QTextBlock block(int row, int column) const {
    return table()->cellAt(row, column).firstCursorPosition().block();
  }
  [[nodiscard]] QTextBlock blockWith(const char* text) const { return document_.find(QString::fromUtf8(text)).block(); }
  [[nodiscard]] QTextCharFormat formatOf(const char* text) const {
    return document_.find(QString::fromUtf8(text)).charFormat();
  }

 private:
  PageText page_;
  QTextDocument document_;
};

QByteArray bytes(const char* page) { return page; }

TEST(PageText, AnOldSheetIsATableOfItsSizeAndLook) {
  const Shown sheet(bytes(testing::kOldSheet));
  const QTextTable* table = sheet.table();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->rows(), 7);
  EXPECT_EQ(table->columns(), 4);
  EXPECT_EQ(sheet.block(0, 0).text(), "Defunciones por causa y sexo. Año 1999");
  EXPECT_EQ(sheet.block(4, 0).text(), u"Sistema\u00A0circulatorio\u00A0(1)") << "in one line";
  EXPECT_EQ(table->cellAt(0, 0).columnSpan(), 4);
  EXPECT_EQ(table->cellAt(1, 0).rowSpan(), 2);
  const auto widths = table->format().columnWidthConstraints();
  EXPECT_EQ(widths[0], QTextLength(QTextLength::FixedLength, 220));
  EXPECT_EQ(widths[3], QTextLength(QTextLength::FixedLength, 80));
  EXPECT_EQ(sheet.format(1, 0).background().color(), QColor(0xCC, 0xFF, 0xCC));
  EXPECT_EQ(sheet.format(1, 0).topBorder(), 0) << "the heading above draws it";
  EXPECT_EQ(sheet.format(0, 0).bottomBorder(), 1);
  EXPECT_EQ(sheet.format(1, 0).leftBorder(), 1);
  EXPECT_EQ(sheet.format(1, 0).verticalAlignment(), QTextCharFormat::AlignMiddle);
  EXPECT_TRUE(sheet.block(3, 1).blockFormat().alignment().testFlag(Qt::AlignRight));
  EXPECT_TRUE(sheet.block(1, 0).blockFormat().alignment().testFlag(Qt::AlignHCenter));
  EXPECT_EQ(sheet.formatOf("18.492").fontWeight(), QFont::Bold);
  EXPECT_EQ(sheet.page().title, "");
}

TEST(PageText, AnOldTextKeepsItsParagraphsAndTables) {
  const Shown text(bytes(testing::kOldText));
  EXPECT_EQ(text.page().title, "Metodología del estudio");
  EXPECT_TRUE(text.blockWith("estandarizan").blockFormat().alignment().testFlag(Qt::AlignJustify));
  EXPECT_EQ(text.formatOf("directo").fontWeight(), QFont::Bold);
  EXPECT_EQ(text.formatOf("Metodología").fontWeight(), QFont::Bold);
  EXPECT_NE(text.text().find("“población estándar”"), std::string::npos);
  ASSERT_NE(text.table(), nullptr);
  EXPECT_EQ(text.block(0, 1).text(), "Códigos");
  EXPECT_EQ(text.format(0, 0).leftBorder(), 1);
  EXPECT_EQ(text.format(0, 1).leftBorder(), 0);
  EXPECT_EQ(text.table()->format().leftMargin(), 7);
}

TEST(PageText, TheOldestPagesHaveTheirTagsClosed) {
  const Shown page(bytes(testing::kOldestPage));
  EXPECT_EQ(page.page().title, "Población 1999");
  EXPECT_EQ(page.page().background, QColor(0xFF, 0xFF, 0xE0));
  EXPECT_EQ(page.formatOf("párrafo").foreground().color(), QColor(0, 0, 0x80));
  EXPECT_EQ(page.formatOf("por sexo").font().pixelSize(), 24);
  EXPECT_EQ(page.formatOf("notas").anchorHref(), "notas.html");
  EXPECT_NE(page.text().find("© 1999 – notas"), std::string::npos);
  EXPECT_NE(page.text().find("a. tres"), std::string::npos);
  EXPECT_NE(page.blockWith("uno").textList(), nullptr);
}

TEST(PageText, ZoomMakesEverythingLarger) {
  const Shown sheet(bytes(testing::kOldSheet), 2);
  EXPECT_EQ(sheet.table()->format().columnWidthConstraints()[0], QTextLength(QTextLength::FixedLength, 440));
  EXPECT_EQ(sheet.formatOf("Tumores").font().pixelSize(), 27);
  EXPECT_EQ(sheet.page().margins[kLeft], 32);
  EXPECT_EQ(readPage("<p>a", 0).html, readPage("<p>a", 0.25).html);
  EXPECT_EQ(readPage("<p>a", std::nan("")).html, readPage("<p>a").html);
}

TEST(PageText, BlanksAndLinesAreJoinedAsHtmlJoinsThem) {
  struct Case {
    const char* html;
    const char* text;
  };
  for (const Case& each : {
           Case{"", ""},
           Case{"  a  \n b ", "a b"},
           Case{"<p>a </p> <p> b</p>", "a\nb"},
           Case{"a<b> b</b> <i>c</i>d", "a b cd"},
           Case{"a<br>b<br>", "a\nb"},
           Case{"<pre>\na  b\n c</pre>d", "a  b\n c\nd"},
           Case{"<p>a<p>&nbsp;<p>b", "a\n \nb"},
           Case{"<nobr>a b</nobr>", "a b"},
           Case{"<ol start=3><li>a<li value=7>b<li>c</ol>", "3. a\n7. b\n8. c"},
           Case{"<q>a</q>", "«a»"},
           Case{"<p style='text-transform:uppercase'>año", "AÑO"},
           Case{"a<p style='display:none'>b</p><script>c</script><textarea>d</textarea>", "a"},
           Case{"<frameset><frame src=a.htm name=Hoja1><noframes>sin marcos</noframes></frameset>",
                "Hoja1\nsin marcos"},
           Case{"<img src='http://x/y.png' alt='Un mapa'><img src='data:image/png;base64,AAAA' alt=b>", "Un mapab"},
       }) {
    EXPECT_EQ(Shown(bytes(each.html)).text(), each.text) << each.html;
  }
}

TEST(PageText, OnlyHarmlessMarkupComesOut) {
  const QString html = readPage(
                           "<p style='color:red;x:url(http://a/b)' onclick='x()'>a<a href='javascript:x()'>b</a>"
                           "<a href='a&quot;><script>'>c</a><iframe src=x></iframe><style>@import url(x);</style>"
                           "<link rel=stylesheet href=http://x/y.css><font face='a\"b'>d")
                           .html;
  for (const char* never : {"script>", "onclick", "url(", "iframe", "javascript", "http", "import", "link", "a\"b"}) {
    EXPECT_FALSE(html.contains(QLatin1String(never))) << never << " in " << html.toStdString();
  }
}

TEST(PageText, StyleSheetsComeFromWhoeverReads) {
  const SheetReader sheets = [](const QString& address) {
    return address == QLatin1String("hoja.css") ? QByteArray("p{color:#ff0000}") : QByteArray();
  };
  const QByteArray page = "<link rel=stylesheet href=hoja.css><p>a";
  EXPECT_TRUE(readPage(page, 1, sheets).html.contains(QLatin1String("color:#ff0000")));
  EXPECT_FALSE(readPage(page).html.contains(QLatin1String("color:#ff0000")));
}

TEST(PageText, TheWidestLinesAndTheMarginsAreThoseOfTheBody) {
  const PageText page =
      readPage("<style>body{margin:0 auto;padding:32px 24px;max-width:46em;font-size:10px}</style>a", 2);
  EXPECT_EQ(page.widest, 920);
  EXPECT_EQ(page.margins, (Sides<int>{64, 48, 64, 48}));
}

TEST(PageText, ALargePageIsCutAndSaysSo) {
  const PageText page = readPage("<table>" + QByteArray("<tr><td>1").repeated(130'000));
  EXPECT_TRUE(page.isCut);
  EXPECT_TRUE(page.html.contains(QStringLiteral("demasiado grande")));
  EXPECT_FALSE(readPage("<p>a").isCut);
}

TEST(PageText, NoCharacterIsCutInTwo) {
  const QByteArray title = "<title>" + QByteArray(199, 'a') + "\U0001D6FC</title>";
  EXPECT_EQ(readPage(title).title, QString(199, u'a'));
  TreeLimits limits;
  limits.characters = 2;
  EXPECT_EQ(treeOf(u"a\U0001D6FC", limits).body().children.at(0)->text, QStringLiteral("a"));
}

TEST(PageText, ListsOfAnyNumberAreCounted) {
  EXPECT_EQ(Shown("<ol start=-2147483648><li>a</ol><ol><li value=2147483647>b<li>c</ol>").text(),
            "-1000000000. a\n1000000000. b\n1000000001. c");
}

TEST(PageText, LongParagraphsAndWordsAreBroken) {
  const Shown words(QByteArray("palabra ").repeated(10'000));
  const Shown word(QByteArray(100'000, 'x'));
  for (QTextBlock block = word.blockWith("x"); block.isValid(); block = block.next()) EXPECT_LT(block.length(), 20'000);
  EXPECT_EQ(QString::fromStdString(word.text()).count(u'x'), 100'000);
  EXPECT_EQ(QString::fromStdString(words.text()).count(QLatin1String("palabra")), 10'000);
}

TEST(PageText, EveryCutPageIsAPage) {
  for (const char* each : {testing::kOldSheet, testing::kOldText, testing::kOldestPage}) {
    const QByteArray page(each);
    for (qsizetype length = 0; length < page.size(); length += 7) {
      EXPECT_TRUE(readPage(page.first(length)).html.endsWith(QLatin1String("</html>")));
    }
  }
}

TEST(PageText, SpoiltPagesArePages) {
  std::mt19937 random(20020401);
  const QByteArray pages[] = {testing::kOldSheet, testing::kOldText, testing::kOldestPage};
  const QByteArray marks = "<>\"'&;:{}/=- 09%";
  for (int i = 0; i < 400; ++i) {
    QByteArray page = pages[i % 3];
    for (int changes = 0; changes < 20; ++changes) {
      const auto at = static_cast<qsizetype>(random() % static_cast<unsigned>(page.size()));
      const auto mark = marks[static_cast<qsizetype>(random() % static_cast<unsigned>(marks.size()))];
      random() % 2 == 0 ? page.remove(at, 1 + random() % 30) : page.insert(at, mark);
    }
    const Shown shown(page);
    EXPECT_TRUE(shown.page().html.endsWith(QLatin1String("</html>"))) << i;
  }
}

TEST(PageText, PagesThatAskForTooMuchAreReadInTime) {
  constexpr qsizetype kTimes = 20'000;
  QByteArray rules = "<style>";
  for (int i = 0; i < 3000; ++i) rules += "td td div, td { color: red; margin: 1px }\n";
  const QByteArray manyRules = rules + "</style><table>" + QByteArray("<td>1").repeated(kTimes);
  QList<QByteArray> all{manyRules, "<table>" + QByteArray("<tr><td rowspan=9999 colspan=9999>").repeated(kTimes)};
  for (const char* part : {"<table><tr><td>", "<div style='border:1px solid'>", "<ul><li>", "<b>a", "<br>", "<hr>",
                           "<div style='margin:4000px'>a", "<a name=x>", "<p>", "<caption>", "<table border>",
                           "<font size=+9>a", "<sup>a", "<img src=x width=99999999>", "&#1114111;"}) {
    all += QByteArray(part).repeated(kTimes);
  }
  for (const QByteArray& page : all) EXPECT_FALSE(readPage(page).html.isEmpty()) << page.first(60).constData();
}

}  // namespace
}  // namespace desktop::pages

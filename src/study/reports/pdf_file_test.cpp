#include "study/reports/pdf_file.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "study/model/study_error.h"

namespace study::reports {
namespace {

std::vector<Page> twoPages() {
  Page page;
  page.text({100, 100}, "Mortalidad ñ á", {20, true, kTitle});
  page.text({100, 200}, "Texto", {});
  page.box({100, 300, 50, 50}, kBar);
  page.disc({300, 300}, 20, kMen);
  return {page, page};
}

// Every object lies where the document's table says.
void expectSound(const QByteArray& document) {
  const qsizetype table = document.mid(document.lastIndexOf("startxref\n") + 10).split('\n').front().toLongLong();
  ASSERT_EQ(document.mid(table, 5), "xref\n");
  const QList<QByteArray> lines = document.mid(table).split('\n');
  const qsizetype objects = lines[1].split(' ')[1].toLongLong();
  ASSERT_GT(objects, 5);
  for (qsizetype i = 0; i < objects; ++i) {
    const QByteArray& entry = lines[2 + i];
    ASSERT_GE(entry.size(), 18) << i;
    if (entry[17] != 'n') continue;
    const QByteArray wanted = QByteArray::number(i) + " 0 obj";
    EXPECT_EQ(document.mid(entry.left(10).toLongLong(), wanted.size()), wanted);
  }
}

TEST(PdfFile, HasPagesAndAFixedDate) {
  const QByteArray document = pdfOf(twoPages(), "Informe", 2001);
  EXPECT_TRUE(document.startsWith("%PDF-"));
  EXPECT_TRUE(document.trimmed().endsWith("%%EOF"));
  EXPECT_TRUE(document.contains("/CreationDate (D:20010101000000Z)"));
  EXPECT_EQ(document.count("/Type /Page\n"), 2);
  expectSound(document);
}

TEST(PdfFile, TakesDatesOfAnyLength) {
  const QByteArray document = pdfOf(twoPages(), "Informe", 2001);
  for (const QByteArray date : {"D:1999", "D:20010101000000+01'00'", "D:20010101000000Z"}) {
    const QByteArray changed = withCreationDate(document, date);
    EXPECT_TRUE(changed.contains("/CreationDate (" + date + ")"));
    expectSound(changed);
    EXPECT_EQ(withCreationDate(changed, "D:20010101000000Z"), document);
  }
}

TEST(PdfFile, RefusesWhatIsNoFinishedDocument) {
  EXPECT_THROW((void)withCreationDate("", "D:1999"), StudyError);
  EXPECT_THROW((void)withCreationDate("%PDF /CreationDate (D:2000)", "D:1999"), StudyError);
}

}  // namespace
}  // namespace study::reports

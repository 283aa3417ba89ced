#include "hosts/desktop/pages/page_printing.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include "hosts/desktop/pages/reading/old_pages.h"

namespace desktop::pages {
namespace {

class PagePrinting : public ::testing::Test {
 protected:
  // The sheets of the printed page, as the document counts them.
  int sheetsOf(const QByteArray& page, QPageLayout::Orientation orientation = QPageLayout::Portrait) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath("pagina.pdf"));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(orientation);
    printPage(printer, page, "Una página");
    QFile file(folder.filePath("pagina.pdf"));
    if (!file.open(QIODevice::ReadOnly)) return -1;
    const QByteArray pdf = file.readAll();
    return static_cast<int>(pdf.count("/Type /Page\n"));
  }

  QTemporaryDir folder;
};

TEST_F(PagePrinting, AShortPageIsOneSheet) {
  EXPECT_EQ(sheetsOf("<p>a"), 1);
  EXPECT_EQ(sheetsOf(testing::kOldSheet), 1);
  EXPECT_EQ(sheetsOf(""), 1);
}

TEST_F(PagePrinting, ALongTableIsSeveralSheets) {
  QByteArray rows;
  for (int i = 0; i < 200; ++i) rows += "<tr><td>" + QByteArray::number(i) + "<td>Tasa";
  EXPECT_GT(sheetsOf("<table><thead><tr><th>N<th>T</thead>" + rows + "</table>"), 2);
}

TEST_F(PagePrinting, AWidePageTurnsThePaperAndIsMadeToFit) {
  const QByteArray wide = "<table><tr>" + QByteArray("<td nowrap>una celda bastante ancha").repeated(8) + "</table>";
  EXPECT_TRUE(wantsLandscape(wide));
  EXPECT_FALSE(wantsLandscape("<p>" + QByteArray("palabra ").repeated(300)));
  EXPECT_EQ(sheetsOf(wide, QPageLayout::Landscape), 1);
}

}  // namespace
}  // namespace desktop::pages

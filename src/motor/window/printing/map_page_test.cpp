#include "motor/window/printing/map_page.h"

#include <QPrinter>
#include <filesystem>
#include <fstream>

#include "motor/drawing/scale_bar.h"
#include "motor/window/map_widget_fixture.h"
#include "motor/window/printing/map_printing.h"

namespace motor {
namespace {

constexpr QSizeF kPage(700, 1000);

class Pages : public MapWidgetTest {
 protected:
  Pages() { session_->run("set map zoom entire set map layer 1 display global global brush (2, 255)"); }

  void addTheme() {
    session_->run("shade 1 with Nombre values \"Ñorga\" Brush (2,1), \"Brisa\" Brush (2,2), \"Ávalos\" Brush (2,3)");
    session_->run("set legend layer 1 title \"Un tema\" subtitle \"de un año\"");
  }
  [[nodiscard]] MapPage page(PageParts parts = {}) const {
    return MapPage(map(), {"Título", "subtítulo", "Fuente: los datos", "1 de mayo de 2003"}, parts);
  }
  static QImage painted(const MapPage& page, QSizeF size) {
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    page.paint(painter, size, 1);
    return image;
  }
  static int inkIn(const QImage& image, const QRectF& part) {
    int ink = 0;
    for (int y = qCeil(part.top()); y < qFloor(part.bottom()); ++y) {
      for (int x = qCeil(part.left()); x < qFloor(part.right()); ++x) {
        if (qGray(image.pixel(x, y)) < 160) ++ink;
      }
    }
    return ink;
  }
};

TEST_F(Pages, HaveTheirPartsBelowEachOther) {
  const MapPage::Layout layout = page().layoutFor(kPage);
  EXPECT_NEAR(layout.map.width() / layout.map.height(), 4.0 / 3, 1e-9) << "the window's shape";
  EXPECT_NEAR(layout.map.width(), 700, 1e-9) << "as large as the page allows";
  EXPECT_GT(layout.map.top(), layout.title.bottom());
  EXPECT_LT(layout.map.bottom(), layout.footer.top());
  EXPECT_TRUE(layout.legend.isEmpty()) << "there is no theme";
  EXPECT_NEAR(layout.footer.bottom(), 1000, 1e-9);
}

TEST_F(Pages, LongTitlesAreBrokenAndCutNowhere) {
  const QString words = QStringLiteral("Razón estandarizada de mortalidad por enfermedades cerebrovasculares ");
  const auto titled = [&](const QString& title) { return MapPage(map(), {title, words, "", ""}, {}); };
  const MapPage::Layout one = titled("Título").layoutFor({400, 600});
  const MapPage::Layout three = titled(words + words + words).layoutFor({400, 600});
  EXPECT_GT(three.title.height(), one.title.height() + 40);
  EXPECT_GT(three.map.top(), three.title.bottom());
  EXPECT_GT(inkIn(painted(titled(words + words + words), {400, 600}), three.title),
            2 * inkIn(painted(titled(words), {400, 600}), one.title));
}

TEST_F(Pages, AThemesLegendGoesWhereTheMapKeepsMoreRoom) {
  addTheme();
  const MapPage::Layout high = page().layoutFor(kPage);
  EXPECT_GE(high.legend.top(), high.map.bottom());
  const MapPage::Layout wide = page().layoutFor(kPage.transposed());
  EXPECT_GE(wide.legend.left(), wide.map.right());
  EXPECT_LE(wide.legend.right(), 1000.001);
  EXPECT_TRUE(page({.legend = false}).layoutFor(kPage).legend.isEmpty());
}

TEST_F(Pages, EveryPartIsPainted) {
  addTheme();
  const MapPage whole = page();
  const MapPage::Layout layout = whole.layoutFor(kPage);
  const QImage image = painted(whole, kPage);
  EXPECT_GT(inkIn(image, layout.title), 100);
  EXPECT_GT(inkIn(image, layout.legend), 100);
  EXPECT_GT(inkIn(image, layout.footer.adjusted(0, 4, -400, 0)), 50) << "the source";
  EXPECT_GT(inkIn(image, layout.footer.adjusted(400, 4, 0, 0)), 50) << "the date";
  const QPoint corner = layout.map.bottomLeft().toPoint();
  const QImage bare = painted(page({.scaleBar = false, .northArrow = false}), kPage);
  EXPECT_NE(image.copy(corner.x() + 12, corner.y() - 40, 100, 28),
            bare.copy(corner.x() + 12, corner.y() - 40, 100, 28));
  const QPoint right = layout.map.topRight().toPoint();
  EXPECT_NE(image.copy(right.x() - 40, right.y() + 5, 38, 60), bare.copy(right.x() - 40, right.y() + 5, 38, 60));
}

// The same map is as wide on the ground wherever it is shown; what a length on the paper stands for follows from the
// paper alone.
TEST_F(Pages, TheScaleIsTheGroundOverThePaper) {
  for (const QSizeF size : {kPage, kPage.transposed(), QSizeF(300, 400)}) {
    const MapPage::Layout layout = page().layoutFor(size);
    const double paperMetres = layout.map.width() / 96 * 0.0254;
    EXPECT_NEAR(layout.ratio * paperMetres, map().zoomMetres, 1e-6 * map().zoomMetres);
    const ScaleBar bar = scaleBarFor(map().zoomMetres / layout.map.width(), 150);
    EXPECT_NEAR(bar.pixels / 96 * 0.0254 * layout.ratio, bar.metres, 1e-6 * bar.metres);
  }
}

TEST_F(Pages, TheMapMayBeAsLargeAsOnTheScreen) {
  EXPECT_EQ(page({.asOnScreen = true}).layoutFor(kPage).map.size(), QSizeF(400, 300));
  const MapPage::Layout small = page({.asOnScreen = true}).layoutFor({300, 400});
  EXPECT_NEAR(small.map.width(), 300, 1e-9) << "the page has no room for it";
}

TEST_F(Pages, TextsComeFromTheMapsThemeAndItsWindow) {
  const QDate day(2003, 5, 1);
  PageTexts texts = pageTexts(window(), "El atlas", day);
  EXPECT_EQ(texts.title, "El atlas") << "the map's own title is only its tables";
  EXPECT_EQ(texts.source, "Fuente: El atlas");
  EXPECT_EQ(texts.date, "1 de mayo de 2003");
  addTheme();
  texts = pageTexts(window(), "El atlas", day);
  EXPECT_EQ(texts.title, "Un tema");
  EXPECT_EQ(texts.subtitle, "de un año");
  session_->run("Set Window FrontWindow() Title \"Provincias\"");
  texts = pageTexts(window(), "El atlas", day);
  EXPECT_EQ(texts.title, "Provincias");
  EXPECT_EQ(texts.subtitle, "de un año");
  session_->run("Set Window FrontWindow() Title \"Tasa. Mujeres, 2002. Zonas\"");
  texts = pageTexts(window(), "El atlas", day);
  EXPECT_EQ(texts.title, "Tasa");
  EXPECT_EQ(texts.subtitle, "Mujeres, 2002. Zonas");
  EXPECT_TRUE(pageTexts(window(), "", day).source.isEmpty());
}

TEST_F(Pages, PrintsOnePage) {
  addTheme();
  const std::filesystem::path file = folder_.path() / "mapa.pdf";
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(file.string()));
  printer.setPageSize(QPageSize(QPageSize::A4));
  printPage(printer, page());
  std::ifstream stream(file, std::ios::binary);
  const std::string pdf((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_NE(pdf.find("/Count 1"), std::string::npos);
  EXPECT_NE(pdf.find("%%EOF"), std::string::npos);
  EXPECT_GT(pdf.size(), 5000U);
}

}  // namespace
}  // namespace motor

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFontMetrics>
#include <QPushButton>

#include "atlas/mapengine/toolbars.h"
#include "hosts/desktop/artwork.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/twips.h"
#include "hosts/desktop/views/text_fit.h"
#include "hosts/screen/looks.h"

namespace desktop {
namespace {

TEST(Twips, FifteenArePixel) {
  EXPECT_EQ(toPixels(15360), 1024);
  EXPECT_EQ(toPixels(22), 1);
  EXPECT_EQ(toPixels(23), 2);
  EXPECT_EQ(toTwips(768), 11520);
}

TEST(FitText, BreaksThenShrinksThenCuts) {
  const QFont font = theme::font({.name = "Verdana", .points = 9});
  const QFontMetrics metrics(font);
  const QString text = "Haga clic en el fondo del mapa";
  const int wide = metrics.horizontalAdvance(text) + 2;

  EXPECT_EQ(fitText(text, font, {wide, metrics.height()}).font, font);
  const FittedText broken = fitText(text, font, {wide * 2 / 3, metrics.height() * 2 + 2});
  EXPECT_EQ(broken.font, font);
  EXPECT_FALSE(broken.isCut);
  const FittedText smaller = fitText(text, font, {wide - 10, metrics.height()});
  EXPECT_LT(smaller.font.pixelSize(), font.pixelSize());
  EXPECT_FALSE(smaller.isCut);
  const FittedText cut = fitText(text, font, {wide / 3, metrics.height()});
  EXPECT_TRUE(cut.isCut);
  EXPECT_TRUE(cut.text.endsWith(QChar(0x2026)));
}

TEST(Words, OfTheToolkitAreSpanish) {
  using Box = QDialogButtonBox;
  const Box box(Box::Ok | Box::Cancel | Box::Yes | Box::No | Box::Save);
  const auto text = [&box](Box::StandardButton button) { return box.button(button)->text().remove('&'); };
  EXPECT_EQ(text(Box::Ok), "Aceptar");
  EXPECT_EQ(text(Box::Cancel), "Cancelar");
  EXPECT_EQ(text(Box::Yes), "Sí");
  EXPECT_EQ(text(Box::No), "No");
  EXPECT_EQ(text(Box::Save), "Guardar");
  EXPECT_EQ(QFileIconProvider().type(QFileInfo(QDir::tempPath())), "Carpeta");
  EXPECT_EQ(QLocale().language(), QLocale::Spanish);
  EXPECT_EQ(QString::number(1234.5), "1234.5");
}

TEST(Artwork, EveryToolbarButtonHasItsDrawing) {
  for (const auto toolbar : {atlas::thematicToolbar(), atlas::statisticsToolbar(), atlas::dataToolbar()}) {
    for (const atlas::ToolbarButton& button : toolbar) {
      if (button.picture.empty()) continue;
      EXPECT_TRUE(artwork::has(std::string(button.picture))) << button.picture;
      if (!button.label.empty()) {
        EXPECT_EQ(screen::pictureOfCommand("Comando actual: " + std::string(button.label)), button.picture);
      }
    }
  }
  EXPECT_FALSE(artwork::has("otro"));
  EXPECT_EQ(screen::pictureOfCommand("Comando actual: otro"), "");
}

TEST(Theme, FontsHaveTheSamePixelsEverywhere) {
  EXPECT_EQ(theme::font({.name = "Verdana", .points = 8.25}).pixelSize(), 11);
  EXPECT_EQ(QFontInfo(theme::font({.name = "Verdana", .points = 9})).family(), "DejaVu Sans");
  EXPECT_EQ(theme::color(0x800000), QColor(0, 0, 128));
}

}  // namespace
}  // namespace desktop

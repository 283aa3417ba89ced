#include <gtest/gtest.h>

#include "chart_sheet.h"
#include "motor/window/printing/map_page.h"
#include "sample_maps.h"

// A printed page.
namespace motor {
namespace {

QImage page(QSizeF size, const QString& title) {
  const Map map = sample::themed(
      "shade 1 with Valor ranges 0: 3 Brush (2,16773592), 3: 6 Brush (2,16632704), 6: 9 Brush (2,14381606), 9: 12 "
      "Brush (2,9841920)",
      400, 300, "title \"Tasas por cien mil\" subtitle \"Mujeres\"");
  const MapPage page(map,
                     {title, QStringLiteral("Mujeres, 1999-2002"), QStringLiteral("Fuente: registro de defunciones"),
                      QStringLiteral("1 de mayo de 2003")},
                     {});
  QImage image(size.toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  page.paint(painter, size, 1);
  return image;
}

TEST(PagePictures, Upright) { expectDrawing(page({480, 640}, QStringLiteral("Mortalidad por tumores")), "page"); }

TEST(PagePictures, OnItsSideWithALongTitle) {
  const QString title = QStringLiteral(
      "Razón estandarizada de mortalidad por enfermedades cerebrovasculares y otras del sistema circulatorio");
  expectDrawing(page({640, 420}, title), "page-wide");
}

}  // namespace
}  // namespace motor

#include <gtest/gtest.h>

#include "chart_sheet.h"
#include "motor/drawing/legend.h"
#include "motor/drawing/map_image.h"
#include "sample_maps.h"

// Every kind of theme, and legends.
namespace motor {
namespace {

const std::string kRanges =
    "shade 1 with Valor ranges 0: 3 Brush (2,16773592), 3: 6 Brush (2,16632704), 6: 9 Brush (2,14381606), "
    "9: 11 Brush (2,9841920) default Brush (2,14737632)";
const std::string kParts = " style Brush (2,3835808), Brush (2,14722136), Brush (2,8035919)";
const std::string kWith = "shade 1 with Valor, 6, 14 - Valor ";

struct Kind {
  const char* caption;
  std::string shade;
};

std::vector<Kind> kinds() {
  return {
      {"tramos", kRanges},
      {"tramos con tramas",
       "shade 1 with Valor ranges 0: 3 Brush (17,1522031,16777215), 3: 6 Brush (15,1522031,16777215), 6: 9 Brush "
       "(36,1522031,16777215), 9: 12 Brush (40,1522031,16777215)"},
      {"valores",
       "shade 1 with Nombre values \"Ñorga\" Brush (2,12183039), \"Pinares\" Brush (2,16769200), \"Haya\" Brush "
       "(2,13293791), \"Olmo\" Brush (2,14858198) default Brush (1,0)"},
      {"tartas", kWith + "pie max size 0.35 at value 20 border Pen (1,2,4210752)" + kParts},
      {"medias tartas", kWith + "half pie angle 180 max size 0.4 at value 20 border Pen (1,2,16777215)" + kParts},
      {"barras", kWith + "bar max size 0.4 at value 14 width 0.07" + kParts},
      {"barras apiladas", kWith + "bar stacked max size 0.36 at value 20 width 0.12 frame Brush (2,16777215)" + kParts},
      {"símbolos graduados",
       "shade 1 with Valor - 4 graduated 0: 0 8: 26 Symbol (34,11890462,12) inflect Symbol (34,3835808,12)"},
      {"puntos", "shade 1 with Valor density 0.1 circle width 3 color 9841920"},
  };
}

TEST(ThemePictures, EveryKind) {
  const QSize cell(210, 165);
  ChartSheet sheet(static_cast<int>(kinds().size()), 3, cell, ChartSheet::Captions::above, 14);
  for (const Kind& kind : kinds()) {
    sheet.add(QString::fromUtf8(kind.caption), [&](QPainter& painter, const QRectF& place) {
      painter.drawImage(place.topLeft(), renderMap(sample::themed(kind.shade, cell.width(), cell.height()), cell, 1));
    });
  }
  expectDrawing(sheet.picture(), "themes");
}

// Pictures one beside the other on grey, so that their edges are seen.
QImage inARow(const std::vector<QImage>& images) {
  constexpr int kGap = 8;
  QSize size(kGap, 0);
  for (const QImage& image : images) {
    size = {size.width() + image.width() + kGap, std::max(size.height(), image.height() + 2 * kGap)};
  }
  QImage row(size, QImage::Format_RGB32);
  row.fill(QColor(214, 218, 224));
  QPainter painter(&row);
  int left = kGap;
  for (const QImage& image : images) {
    painter.drawImage(left, kGap, image);
    left += image.width() + kGap;
  }
  return row;
}

QImage legendOf(const std::string& shade, const std::string& words = "") {
  return renderLegend(sample::themed(shade, 200, 150, words), 1);
}

TEST(ThemePictures, Legends) {
  const std::string longTitle =
      "title \"Razón estandarizada de mortalidad por enfermedades cerebrovasculares y otras del sistema circulatorio\" "
      "Font (\"Verdana\",1,10,0) subtitle \"Hombres, 1999-2002\" count on ranges Font (\"Verdana\",0,8,0) "
      "\"sin datos suficientes o con menos de cinco defunciones en los cuatro años del periodo\" display on, "
      "auto display on, auto display on, "
      "\"de 6 a 9, mucho mayor que en el conjunto de la región según el intervalo de confianza\" display on, "
      "auto display on";
  expectDrawing(inARow({legendOf(kRanges, longTitle), legendOf(kinds()[7].shade), legendOf(kinds()[3].shade),
                        legendOf(kinds()[8].shade)}),
                "legends");
}

TEST(ThemePictures, LegendOfLayers) {
  Symbol church;
  church.shape = 64;
  church.colour = 0x8A2F2F;
  church.size = 14;
  Layer roads = small::layer({small::line({{0, 0}, {9, 9}}, Pen{1, 65 + 128, 0x8A5A00})});
  Layer places = small::layer({small::point({5, 5}, church)});
  Layer zones = sample::zones();
  roads.name = "Carreteras";
  places.name = "Iglesias";
  zones.name = "Zonas básicas de salud";
  expectDrawing(renderLegend(sample::map({places, roads, zones}, 200, 150), 1), "legend-of-layers");
}

}  // namespace
}  // namespace motor

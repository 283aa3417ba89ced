#include <gtest/gtest.h>

#include <cmath>

#include "chart_sheet.h"
#include "motor/drawing/map_image.h"
#include "sample_maps.h"

// Labels of points, lines and regions.
namespace motor {
namespace {

constexpr QSize kSize(240, 180);

Font font(int style = 0, double size = 8, Colour back = kTransparent) {
  return {"Verdana", style, size, 0x1F2A3C, back};
}

Layer labelled(Layer layer, const Font& letters) {
  layer.label.automatic = true;
  layer.label.font = letters;
  return layer;
}

QImage picture(const std::vector<Layer>& layers) {
  return renderMap(sample::map(layers, kSize.width(), kSize.height()), kSize, 1);
}

// A point for each of the nine positions, named after it.
QImage anchors() {
  constexpr const char* kNames[] = {"CC", "TL", "TC", "TR", "CL", "CR", "BL", "BC", "BR"};
  std::vector<Layer> layers;
  for (int position = 0; position < 9; ++position) {
    Symbol disc;
    disc.shape = 34;
    disc.colour = 0xB5523B;
    disc.size = 8;
    const Point at{60.0 + 140 * (position % 3), 250.0 - 100 * (position / 3)};
    Layer layer = labelled(small::layer({small::point(at, disc)}, {kNames[position]}), font());
    layer.label.position = position;
    layers.push_back(layer);
  }
  return picture(layers);
}

// A square for each of the nine positions.
QImage regionAnchors() {
  constexpr const char* kNames[] = {"CC", "TL", "TC", "TR", "CL", "CR", "BL", "BC", "BR"};
  std::vector<Layer> layers;
  for (int position = 0; position < 9; ++position) {
    const double x = 70.0 + 135 * (position % 3);
    const double y = 260.0 - 110 * (position / 3);
    const ObjectPtr square = small::region({small::square(x - 45, y - 40, x + 45, y + 40)},
                                           Brush{2, 0xE8EEF4, kTransparent}, Pen{1, 2, 0x8A95A5});
    const ObjectPtr middle = small::line({{x - 6, y}, {x + 6, y}}, Pen{1, 2, 0xB5523B});
    Layer layer = labelled(small::layer({square}, {kNames[position]}), font());
    layer.label.position = position;
    layer.label.offset = 4;
    layers.push_back(small::layer({middle}));
    layers.push_back(layer);
  }
  return picture(layers);
}

QImage regions(const Font& letters) {
  return picture({labelled(sample::outline(), font(1, 10)), labelled(sample::zones(), letters)});
}

Layer rivers() {
  Ring wave;
  for (int i = 0; i <= 120; ++i) wave.push_back({5 + i * 3.3, 210 + 40 * std::sin(i / 14.0) + 25 * std::sin(i / 40.0)});
  const Ring straight{{30, 20}, {200, 110}, {390, 130}};
  const Ring upright{{340, 300}, {352, 160}, {340, 20}};
  const Pen blue{2, 2, 0x5B8DB8};
  return small::layer({small::line(wave, blue), small::line(straight, blue), small::line(upright, blue)},
                      {"Río Grande de la Sierra", "Canal del Norte", "Arroyo Seco"});
}

QImage lines(bool parallel, int position) {
  Layer layer = labelled(rivers(), font(2, 8));
  layer.label.font.fore = 0x2A5A86;
  layer.label.parallel = parallel;
  layer.label.position = position;
  return picture({layer});
}

// Two labels moved away, with lines to their objects.
QImage callouts() {
  Layer layer = labelled(sample::zones(), font());
  layer.label.automatic = false;
  layer.label.line = LabelLine::simple;
  layer.label.pen = Pen{1, 2, 0x3A4250};
  EditedLabel simple;
  simple.row = 1;
  simple.anchor = Point{60, 40};
  EditedLabel arrow;
  arrow.row = 6;
  arrow.anchor = Point{110, 270};
  arrow.line = LabelLine::arrow;
  EditedLabel turned;
  turned.row = 3;
  turned.angle = 30;
  layer.label.edited = {simple, arrow, turned};
  return picture({layer});
}

TEST(LabelPictures, AllOfThem) {
  ChartSheet sheet(9, 3, kSize, ChartSheet::Captions::above, 14);
  const auto add = [&](const char* caption, const QImage& image) {
    sheet.add(QString::fromUtf8(caption),
              [&](QPainter& painter, const QRectF& place) { painter.drawImage(place.topLeft(), image); });
  };
  add("puntos", anchors());
  add("regiones, a 4 puntos", regionAnchors());
  add("regiones", regions(font()));
  add("con halo", regions(font(256, 8, 0xFFF2B0)));
  add("con caja", regions(font(0, 8, 0xFFF2B0)));
  add("con caja y sombra, mayúsculas", regions(font(32 + 512, 7, 0xFFFFFF)));
  add("a lo largo de las líneas", lines(true, 2));
  add("sobre las líneas, sin seguirlas", lines(false, 0));
  add("movidas, con línea y flecha; girada", callouts());
  expectDrawing(sheet.picture(), "labels");
}

}  // namespace
}  // namespace motor

#include "motor/drawing/map_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cmath>

#include "motor/drawing/map_image.h"
#include "motor/drawing/small_maps.h"
#include "motor/language/parser.h"

namespace motor {
namespace {

constexpr QRgb kWhitePixel = 0xFFFFFFFF;
constexpr QRgb kRedPixel = 0xFFFF0000;
constexpr QRgb kGreenPixel = 0xFF00FF00;
constexpr QRgb kBluePixel = 0xFF0000FF;
const Brush kRedFill{2, small::kRed, kTransparent};
const Brush kBlueFill{2, small::kBlue, kTransparent};

QImage painted(const Map& map, double devicePixelRatio = 1) { return renderMap(map, {100, 100}, devicePixelRatio); }

QImage painted(const std::vector<Layer>& layers) { return painted(small::map(layers)); }

// The pixel of a place on the map.
QRgb at(const QImage& image, double x, double y) {
  return image.pixel(static_cast<int>(x), image.height() - 1 - static_cast<int>(y));
}

int countOf(const QImage& image, QRgb colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour;
  }
  return count;
}

TEST(MapPainter, FillsARegionAndLeavesItsHoleOpen) {
  const QImage image = painted(
      {small::layer({small::region({small::square(20, 20, 80, 80), small::square(40, 40, 60, 60)}, kRedFill)})});
  EXPECT_EQ(at(image, 30, 30), kRedPixel);
  EXPECT_EQ(at(image, 50, 50), kWhitePixel);
  EXPECT_EQ(at(image, 10, 50), kWhitePixel);
  EXPECT_EQ(at(image, 90, 10), kWhitePixel);
}

TEST(MapPainter, NorthIsUp) {
  const QImage image = painted({small::layer({small::region({small::square(20, 70, 80, 90)}, kRedFill)})});
  EXPECT_EQ(image.pixel(50, 20), kRedPixel);
  EXPECT_EQ(image.pixel(50, 80), kWhitePixel);
}

TEST(MapPainter, DrawsBordersWithoutFill) {
  const QImage image = painted(
      {small::layer({small::region({small::square(20, 20, 80, 80)}, small::kNoBrush, Pen{4, 2, small::kBlue})})});
  EXPECT_EQ(at(image, 20, 50), kBluePixel);
  EXPECT_EQ(at(image, 50, 80), kBluePixel);
  EXPECT_EQ(at(image, 50, 50), kWhitePixel);
}

TEST(MapPainter, DrawsTheIslandsOfARegion) {
  const QImage image = painted(
      {small::layer({small::region({small::square(10, 10, 30, 30), small::square(60, 60, 90, 90)}, kRedFill)})});
  EXPECT_EQ(at(image, 20, 20), kRedPixel);
  EXPECT_EQ(at(image, 75, 75), kRedPixel);
  EXPECT_EQ(at(image, 45, 45), kWhitePixel);
}

TEST(MapPainter, LeavesOutLayersThatAreOffOrOutsideTheirZoomRange) {
  struct Case {
    Display display;
    bool zoomLayered;
    double minZoom, maxZoom;
    QRgb expected;
  };
  for (const Case& c :
       {Case{Display::graphic, false, 0, 0, kRedPixel}, Case{Display::off, false, 0, 0, kWhitePixel},
        Case{Display::graphic, true, 50, 200, kRedPixel}, Case{Display::graphic, true, 0, 99, kWhitePixel},
        Case{Display::graphic, true, 101, 500, kWhitePixel}}) {
    Layer layer = small::layer({small::region({small::square(20, 20, 80, 80)}, kRedFill)});
    layer.display = c.display;
    layer.zoomLayered = c.zoomLayered;
    layer.minZoom = c.minZoom;
    layer.maxZoom = c.maxZoom;
    EXPECT_EQ(at(painted({layer}), 50, 50), c.expected) << c.minZoom << " " << c.maxZoom;
  }
}

TEST(MapPainter, DrawsAQueryLayerOnTopInItsGlobalStyle) {
  const ObjectPtr province = small::region({small::square(20, 20, 80, 80)}, kRedFill, Pen{1, 2, 0});
  Layer query = small::layer({province});
  query.display = Display::global;
  query.brush = kBlueFill;
  query.pen = Pen{3, 2, small::kGreen};
  const QImage image = painted({query, small::layer({province})});
  EXPECT_EQ(at(image, 50, 50), kBluePixel);
  EXPECT_EQ(at(image, 20, 50), kGreenPixel);
}

TEST(MapPainter, OverridesOnlyInGlobalDisplay) {
  Layer layer = small::layer({small::region({small::square(20, 20, 80, 80)}, kRedFill)});
  layer.brush = kBlueFill;
  EXPECT_EQ(at(painted({layer}), 50, 50), kRedPixel);
}

TEST(MapPainter, DrawsTheCosmeticLayerAboveAllOthers) {
  Map map = small::map({small::layer({small::region({small::square(20, 20, 80, 80)}, kRedFill)})});
  map.cosmetic = small::layer({small::region({small::square(40, 40, 60, 60)}, kBlueFill)});
  const QImage image = painted(map);
  EXPECT_EQ(at(image, 50, 50), kBluePixel);
  EXPECT_EQ(at(image, 30, 30), kRedPixel);
}

// A smooth edge painted twice is darker than one painted once.
// Plain regions are painted by another hand than hatched ones, lines and points.
TEST(MapPainter, PaintsTheObjectsOfALayerInTheirOrder) {
  const auto plain = [](const Brush& brush, double from, double to) {
    return small::region({small::square(from, from, to, to)}, brush);
  };
  const Brush hatched{3, small::kGreen, small::kGreen};
  const QImage image =
      painted({small::layer({plain(kRedFill, 5, 60), plain(hatched, 20, 70), plain(kBlueFill, 40, 80),
                             small::line({{0, 75}, {100, 75}}, Pen{5, 2, small::kRed}), plain(kBlueFill, 70, 78)})});
  EXPECT_EQ(at(image, 10, 10), kRedPixel);
  EXPECT_EQ(at(image, 30, 30), kGreenPixel);
  EXPECT_EQ(at(image, 50, 50), kBluePixel);
  EXPECT_EQ(at(image, 90, 75), kRedPixel);
  EXPECT_EQ(at(image, 74, 75), kBluePixel);
  EXPECT_EQ(at(image, 60, 75), kRedPixel);
}

TEST(MapPainter, PaintsAnObjectThatManyRowsShareOnce) {
  const std::vector<Ring> triangle{{{10, 13}, {83, 21}, {47, 90}, {10, 13}}};
  const auto object = [&] { return small::region(triangle, small::kNoBrush, Pen{1, 2, 0}); };
  const ObjectPtr shared = object();
  const QImage once = painted({small::layer({shared})});
  EXPECT_EQ(painted({small::layer({shared, shared, shared})}), once);
  EXPECT_NE(painted({small::layer({object(), object(), object()})}), once);
}

// Two neighbours with a ragged common border, simplified to a twentieth of its points: no ground may show between them.
TEST(MapPainter, NeighboursLeaveNoSlivers) {
  Ring west{{0, 0}};
  Ring east{{100, 0}};
  for (int i = 0; i <= 4000; ++i) {
    const Point p{50 + 6 * std::sin(i / 90.0) + 0.6 * std::sin(i / 1.7), i / 40.0};
    west.push_back(p);
    east.push_back(p);
  }
  west.insert(west.end(), {{0, 100}, {0, 0}});
  east.insert(east.end(), {{100, 100}, {100, 0}});
  const std::vector<Layer> layers{small::layer({small::region({west}, kRedFill), small::region({east}, kRedFill)})};
  const QImage image = painted(layers);
  int palest = 0;
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 100; ++x) palest = std::max(palest, qGreen(image.pixel(x, y)));
  }
  EXPECT_LE(palest, 4) << "of 255: what the ground adds to the red";
}

TEST(MapPainter, KeepsFillingWhenTheObjectIsFarLargerThanThePicture) {
  Map map = small::map({small::layer(
      {small::region({small::square(-1e6, -1e6, 1e6, 1e6), small::square(50.5, -1e6, 51, 1e6)}, kRedFill)})});
  map.zoomMetres = 2;
  const QImage image = painted(map);
  EXPECT_EQ(at(image, 10, 50), kRedPixel);
  EXPECT_EQ(at(image, 90, 50), kWhitePixel);
}

TEST(MapPainter, DrawsLinesInTheLineStyleOfTheLayer) {
  const ObjectPtr road = small::line({{10, 50}, {90, 50}}, Pen{4, 2, small::kRed});
  Layer layer = small::layer({road});
  EXPECT_EQ(at(painted({layer}), 50, 50), kRedPixel);
  layer.display = Display::global;
  layer.pen = Pen{4, 2, small::kBlue};
  EXPECT_EQ(at(painted({layer}), 50, 50), kBluePixel);
  layer.line = Pen{4, 2, small::kGreen};
  EXPECT_EQ(at(painted({layer}), 50, 50), kGreenPixel);
}

TEST(MapPainter, DrawsPointsWithTheirSymbols) {
  Symbol disc;
  disc.shape = 34;
  disc.colour = small::kRed;
  disc.size = 15;
  const QImage image = painted({small::layer({small::point({50, 50}, disc)})});
  EXPECT_EQ(at(image, 50, 50), kRedPixel);
  EXPECT_EQ(at(image, 50, 57), kRedPixel);
  EXPECT_EQ(at(image, 50, 65), kWhitePixel);
}

TEST(MapPainter, WritesTextObjectsAtTheirCorner) {
  MapObject text = objectOf(MapObject::Kind::text, {{{10, 40}}});
  text.text = "MM";
  text.lineHeight = 20;
  text.bounds = {10, 40, 90, 60};
  text.font.size = 0;
  text.font.fore = small::kRed;
  const QImage image = painted({small::layer({std::make_shared<MapObject>(text)})});
  EXPECT_GT(countOf(image.copy(10, 38, 60, 24), kRedPixel), 40);
  EXPECT_EQ(countOf(image.copy(0, 66, 100, 34), kWhitePixel), 3400);
}

TEST(MapPainter, JustifiesTheLinesOfTextObjects) {
  const auto lowerLine = [](TextJustify justify, float spacing) {
    MapObject text = objectOf(MapObject::Kind::text, {{{10, 20}}});
    text.text = "MMM\nM";
    text.lineHeight = 20;
    text.lineSpacing = spacing;
    text.justify = justify;
    text.bounds = {10, 20, 90, 60};
    text.font.size = 0;
    text.font.fore = small::kRed;
    const QImage image = painted({small::layer({std::make_shared<MapObject>(text)})});
    QRect ink;
    for (int y = 64; y < 80; ++y) {
      for (int x = 0; x < 100; ++x) {
        if (qGreen(image.pixel(x, y)) < 100) ink |= QRect(x, y, 1, 1);
      }
    }
    return ink.left();
  };
  const int left = lowerLine(TextJustify::left, 1);
  const int center = lowerLine(TextJustify::center, 1);
  const int right = lowerLine(TextJustify::right, 1.5);
  EXPECT_GE(left, 10);
  EXPECT_GT(center, left + 5);
  EXPECT_GT(right, center + 5);
}

TEST(MapPainter, UsesTheDevicesPixels) {
  const QImage image =
      painted(small::map({small::layer({small::region({small::square(20, 20, 80, 80)}, kRedFill)})}), 2);
  EXPECT_EQ(image.size(), QSize(200, 200));
  EXPECT_EQ(countOf(image, kRedPixel), 120 * 120);
}

TEST(MapPainter, PaintsWithoutSmoothEdgesWhenFast) {
  const Map map = small::map({small::layer({small::region({{{10, 13}, {83, 21}, {47, 90}, {10, 13}}}, kRedFill)})});
  QImage image(100, 100, QImage::Format_RGB32);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    MapPainter().paint(painter, map, {100, 100}, 1, Quality::fast);
  }
  EXPECT_EQ(countOf(image, kRedPixel) + countOf(image, kWhitePixel), 100 * 100);
}

// --- labels ---

// How much of a picture is written in blue: letters are too thin to count their full pixels.
int inkOf(const QImage& image) {
  int ink = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ink += std::max(0, qBlue(image.pixel(x, y)) - qRed(image.pixel(x, y)));
  }
  return ink / 255;
}

Layer labelled(const std::vector<ObjectPtr>& objects, const std::vector<std::string>& names) {
  Layer layer = small::layer(objects, names);
  layer.label.automatic = true;
  layer.label.font.fore = small::kBlue;
  layer.label.font.size = 9;
  return layer;
}

ObjectPtr paleSquare(double minX, double minY, double maxX, double maxY) {
  return small::region({small::square(minX, minY, maxX, maxY)}, Brush{2, 0xFFF0F0, kTransparent});
}

TEST(MapPainter, WritesLabelsOnlyWhereTheyAreWanted) {
  const ObjectPtr square = paleSquare(10, 10, 90, 90);
  Layer layer = labelled({square}, {"Ñorga"});
  EXPECT_GT(inkOf(painted({layer})), 10);
  layer.label.visibility = LabelSettings::Visibility::zoom;
  layer.label.minZoom = 50;
  layer.label.maxZoom = 99;
  EXPECT_EQ(inkOf(painted({layer})), 0);
  layer.label.maxZoom = 100;
  EXPECT_GT(inkOf(painted({layer})), 10);
  layer.label.visibility = LabelSettings::Visibility::off;
  EXPECT_EQ(inkOf(painted({layer})), 0);
  layer.label.visibility = LabelSettings::Visibility::on;
  layer.label.automatic = false;
  EXPECT_EQ(inkOf(painted({layer})), 0);
}

TEST(MapPainter, LabelsDoNotLieOnEachOtherUnlessTheyMay) {
  const std::vector<ObjectPtr> objects{paleSquare(10, 30, 90, 70), paleSquare(12, 32, 88, 68)};
  Layer layer = labelled(objects, {"Larga", "Otra"});
  const QImage alone = painted({labelled({objects[0]}, {"Larga"}), small::layer({objects[1]})});
  EXPECT_EQ(inkOf(painted({layer})), inkOf(alone));
  layer.label.overlap = true;
  EXPECT_GT(inkOf(painted({layer})), inkOf(alone));
}

TEST(MapPainter, LabelsKeepOffWhatLiesOnTheMap) {
  const Map map = small::map({labelled({paleSquare(0, 60, 100, 100), paleSquare(0, 0, 100, 40)}, {"Haya", "Tejo"})});
  const auto inkWithout = [&](const QRectF& place) {
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    MapPainter maps;
    maps.keepLabelsOff({place});
    maps.paint(painter, map, image.size(), 1, Quality::best);
    painter.end();
    return inkOf(image);
  };
  const int both = inkWithout({});
  EXPECT_GT(inkWithout({0, 50, 100, 50}), 10) << "the other stays";
  EXPECT_LT(inkWithout({0, 50, 100, 50}), both - 10);
  EXPECT_EQ(inkWithout({0, 0, 100, 100}), 0);
}

TEST(MapPainter, WritesATextOnceALayerUnlessDuplicatesAreWanted) {
  Layer layer = labelled({paleSquare(0, 60, 100, 100), paleSquare(0, 0, 100, 40)}, {"Haya", "Haya"});
  const int once = inkOf(painted({layer}));
  layer.label.duplicates = true;
  EXPECT_NEAR(inkOf(painted({layer})), 2 * once, 2) << "a halo may end elsewhere in its pixel";
}

TEST(MapPainter, LabelsThePartOfARegionThatIsSeen) {
  const Layer layer = labelled({paleSquare(40, 40, 5000, 60)}, {"Ávila"});
  EXPECT_GT(inkOf(painted({layer})), 10);
}

TEST(MapPainter, KeepsLabelsInsideThePictureOrLeavesThemOut) {
  const QImage image = painted({labelled({paleSquare(-60, 20, 36, 80)}, {"Fresno"})});
  EXPECT_GT(inkOf(image), 10);
  EXPECT_EQ(inkOf(image.copy(0, 0, 2, 100)), 0);
  EXPECT_EQ(inkOf(painted({labelled({paleSquare(-60, 20, 8, 80)}, {"Fresno"})})), 0);
}

TEST(MapPainter, LabelsPutByHandStandWhateverTheLayerSays) {
  Layer layer = labelled({paleSquare(0, 0, 100, 45), paleSquare(0, 55, 100, 100)}, {"Lirio", "Pino"});
  layer.label.automatic = false;
  EditedLabel label;
  label.row = 2;
  layer.label.edited = {label};
  const QImage image = painted({layer});
  EXPECT_GT(inkOf(image.copy(0, 0, 100, 50)), 10);
  EXPECT_EQ(inkOf(image.copy(0, 50, 100, 50)), 0);
  layer.label.edited[0].anchor = Point{50, 20};
  layer.label.edited[0].text = "Otro";
  EXPECT_GT(inkOf(painted({layer}).copy(0, 50, 100, 50)), 10);
  layer.label.automatic = true;
  layer.label.edited[0].visible = false;
  const QImage hidden = painted({layer});
  EXPECT_GT(inkOf(hidden.copy(0, 50, 100, 50)), 10);
  EXPECT_EQ(inkOf(hidden.copy(0, 0, 100, 50)), 0);
}

// --- themes ---

// Three rows with the values 0.5, 1.5 and 2.5, and a theme above them.
QImage themed(const std::string& statement) {
  const std::vector<ObjectPtr> objects{small::region({small::square(0, 0, 30, 100)}, kBlueFill),
                                       small::region({small::square(35, 0, 65, 100)}, kBlueFill),
                                       small::region({small::square(70, 0, 100, 100)}, kBlueFill)};
  const Layer base = small::layer(objects, {"Ñorga", "Brisa", "Pino"});
  Layer theme = base;
  theme.display = Display::value;
  theme.theme = std::make_shared<Shade>(std::get<Shade>(parseProgram(statement).front()));
  return painted({theme, base});
}

TEST(MapPainter, ThemesShadeTheObjectsBelow) {
  struct Case {
    const char* statement;
    QRgb first, second, third;
  };
  for (const Case& c :
       {Case{"shade 1 with Valor ranges 0: 1.5 Brush (2,16711680), 1.5: 2.5 Brush (2,65280)", kRedPixel, kGreenPixel,
             kBluePixel},
        Case{"shade 1 with Valor ranges 0: 1 Brush (2,16711680) default Brush (2,65280)", kRedPixel, kGreenPixel,
             kGreenPixel},
        Case{"shade 1 with Valor ignore 1.5 ranges 0: 1 Brush (2,16711680) default Brush (2,65280)", kRedPixel,
             kBluePixel, kGreenPixel},
        Case{"shade 1 with Nombre values \"ñorga\" Brush (2,16711680), \"Pino\" Brush (2,65280)", kRedPixel, kBluePixel,
             kGreenPixel},
        Case{"shade 1 with NoHay ranges 0: 9 Brush (2,16711680)", kBluePixel, kBluePixel, kBluePixel}}) {
    const QImage image = themed(c.statement);
    EXPECT_EQ(at(image, 15, 50), c.first) << c.statement;
    EXPECT_EQ(at(image, 50, 50), c.second) << c.statement;
    EXPECT_EQ(at(image, 85, 50), c.third) << c.statement;
  }
}

}  // namespace
}  // namespace motor

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QElapsedTimer>
#include <QImage>
#include <cmath>
#include <limits>

#include "motor/drawing/legend.h"
#include "motor/drawing/map_image.h"
#include "motor/drawing/themed_maps.h"

// What no sane map has is drawn somehow or not at all, in moments and little memory.
namespace motor {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
// The address sanitizer pads what is in use and holds back what was freed.
#ifndef __has_feature
#define __has_feature(feature) 0
#endif
constexpr long kMostKilobytes = __has_feature(address_sanitizer) ? 2'000'000 : 1'000'000;

class AbsurdMaps : public ::testing::Test {
 protected:
  AbsurdMaps() { clock_.start(); }
  ~AbsurdMaps() override {
    EXPECT_LT(clock_.elapsed(), 60'000) << "milliseconds";
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    EXPECT_LT(usage.ru_maxrss, kMostKilobytes);
  }

  static QImage painted(const Map& map) { return renderMap(map, {100, 100}, 1); }
  static QImage painted(const std::vector<Layer>& layers) { return painted(small::map(layers)); }

 private:
  QElapsedTimer clock_;
};

const Brush kFill{2, small::kRed, kTransparent};

ObjectPtr triangle(const Pen& pen) { return small::region({{{10, 10}, {90, 10}, {50, 90}, {10, 10}}}, kFill, pen); }

// One object of each kind at a place.
std::vector<ObjectPtr> objectsAt(double x, double y) {
  MapObject text = objectOf(MapObject::Kind::text, {{{x, y}}});
  text.text = "Texto";
  text.lineHeight = 10;
  text.font.size = 0;
  return {small::region({{{10, 10}, {90, 10}, {x, y}, {10, 10}}}, kFill, Pen{3, 6, 0}),
          small::line({{20, 20}, {x, y}, {80, 20}}, Pen{2, 56, 0}), small::point({x, y}, Symbol{}),
          std::make_shared<MapObject>(text)};
}

Layer labelled(std::vector<ObjectPtr> objects, const std::string& name) {
  Layer layer = small::layer(objects, std::vector<std::string>(objects.size(), name));
  layer.label.automatic = true;
  layer.label.duplicates = true;
  layer.label.overlap = true;
  layer.centroids = true;
  return layer;
}

TEST_F(AbsurdMaps, PensOfAnyWidthAndPattern) {
  for (const int width : {-1'000'000'000, -1, 0, 8, 11, 2047, 1'000'000'000, std::numeric_limits<int>::max()}) {
    for (const int pattern : {-5, 0, 3, 26, 56, 59, 76, 118, 119, 128, 129, 204, 255, 1'000'000'000}) {
      const Pen pen{width, pattern, 0x1000000};
      painted({small::layer({triangle(pen), small::line({{0, 0}, {50, 80}, {50, 80}, {100, 0}}, pen)})});
    }
  }
}

TEST_F(AbsurdMaps, AWidePenLeavesTheRestOfTheMapAlone) {
  const Pen pen{1'000'000'000, 2, small::kBlue};
  const QImage image = painted({small::layer({small::line({{0, 1000}, {100, 1000}}, pen)}),
                                small::layer({small::region({small::square(0, 0, 100, 100)}, kFill)})});
  EXPECT_EQ(image.pixel(50, 50), 0xFFFF0000);
}

TEST_F(AbsurdMaps, BrushesOfAnyPattern) {
  for (const int pattern : {-1'000'000'000, -1, 0, 9, 11, 72, 1'000'000'000}) {
    const QImage image =
        painted({small::layer({small::region({small::square(0, 0, 100, 100)}, {pattern, small::kRed, -7})})});
    EXPECT_EQ(image.pixel(50, 50), 0xFFFF0000) << pattern;
  }
}

TEST_F(AbsurdMaps, SymbolsOfAnySizeAndShape) {
  for (const int size : {-1, 0, 1, 1'000'000, std::numeric_limits<int>::max()}) {
    for (const int shape : {-1, 0, 31, 34, 41, 68, 65'536 + 65, std::numeric_limits<int>::max()}) {
      for (const char* font : {"", "DejaVu Sans", "No Such Font"}) {
        Symbol symbol;
        symbol.size = size;
        symbol.shape = shape;
        symbol.font = font;
        symbol.style = 16 + 32;
        symbol.angle = 1e300;
        painted({labelled({small::point({50, 50}, symbol)}, "Villa")});
      }
    }
  }
}

TEST_F(AbsurdMaps, ASymbolWithoutSizeIsNotSeen) {
  Symbol symbol;
  symbol.size = 0;
  EXPECT_EQ(painted({small::layer({small::point({50, 50}, symbol)})}), painted(std::vector<Layer>{}));
}

TEST_F(AbsurdMaps, FontsOfAnySize) {
  for (const double size : {-1e300, -1.0, 0.0, 1e-9, 1e9, 1e300, kNaN, kInfinity}) {
    Layer layer = labelled({triangle({}), small::line({{0, 0}, {100, 50}}, {})}, "Ñorga");
    layer.label.font.size = size;
    layer.label.font.style = 256 + 32;
    painted({layer});
  }
}

TEST_F(AbsurdMaps, LabelsOfAnyLength) {
  std::string words;
  while (words.size() < 100'000) words += "palabra ";
  std::string lines(100'000, '\n');
  for (std::size_t i = 0; i < lines.size(); i += 2) lines[i] = 'a';
  for (const std::string& name : {std::string(100'000, 'W'), words, lines, std::string(5, '\n')}) {
    const std::vector<ObjectPtr> objects{triangle({}), small::line({{0, 0}, {100, 50}}, {}),
                                         small::point({50, 50}, Symbol{})};
    painted({labelled(objects, name)});
  }
}

TEST_F(AbsurdMaps, LabelsOfAnyOffsetAndAngle) {
  for (const int offset : {-1'000'000'000, 0, 1'000'000'000, std::numeric_limits<int>::max()}) {
    for (const double angle : {0.0, 33.0, 1e300, kNaN}) {
      Layer layer = labelled({triangle({}), small::line({{0, 0}, {100, 50}}, {})}, "Ñorga");
      layer.label.offset = offset;
      layer.label.position = 99;
      EditedLabel edited;
      edited.row = 2;
      edited.angle = angle;
      edited.anchor = Point{kNaN, 1e300};
      layer.label.edited = {edited};
      painted({layer});
    }
  }
}

TEST_F(AbsurdMaps, AnyZoom) {
  for (const double zoom : {-1.0, 0.0, 1e-300, 1e-12, 1e12, 1e300, kNaN, kInfinity}) {
    for (const double centre : {0.0, 50.0, 4.5e6, 1e300, kNaN, kInfinity}) {
      Map map = small::map({labelled(objectsAt(50, 90), "Ñorga")});
      map.centre = {centre, centre};
      map.zoomMetres = zoom;
      painted(map);
    }
  }
}

TEST_F(AbsurdMaps, FarIntoARegionThereIsNothingElse) {
  Map map = small::map({small::layer({small::region({small::square(10, 10, 90, 90)}, kFill)})});
  map.zoomMetres = 1e-300;
  EXPECT_EQ(painted(map).pixel(50, 50), 0xFFFF0000);
}

TEST_F(AbsurdMaps, FarAwayFromEverythingThereIsNothing) {
  Map map = small::map({small::layer({small::region({small::square(10, 10, 90, 90)}, kFill)})});
  map.zoomMetres = 1e300;
  EXPECT_EQ(painted(map), painted(std::vector<Layer>{}));
}

TEST_F(AbsurdMaps, ObjectsAtAnyPlace) {
  for (const double x : {kNaN, kInfinity, -kInfinity, 1e300, -1e300, 1e18, 1e-300}) {
    for (const double y : {50.0, x, kNaN}) {
      for (const double zoom : {1e-9, 100.0, 1e9}) {
        Map map = small::map({labelled(objectsAt(x, y), "Ñorga")});
        map.zoomMetres = zoom;
        painted(map);
      }
    }
  }
}

TEST_F(AbsurdMaps, APointThatIsNoPlaceIsLeftOutOfItsRegion) {
  const QImage image = painted({small::layer(
      {small::region({{{10, 10}, {90, 10}, {kNaN, 50}, {90, 90}, {1e200, 50}, {10, 90}, {10, 10}}}, kFill)})});
  EXPECT_EQ(image.pixel(50, 50), 0xFFFF0000);
  EXPECT_EQ(image.pixel(5, 50), 0xFFFFFFFF);
}

TEST_F(AbsurdMaps, ThemesOfAnySize) {
  const Layer base = small::squares(4, kFill);
  for (const char* kind :
       {"pie max size 1000000000 units \"km\" at value 0.000001 by \"const\"", "pie angle 1e300 max size -3",
        "bar width 1e300 max size 1e300", "bar stacked normalized width 0",
        "half pie counter fixed max size 1000000000", "graduated 0: 1e300 1e300: 1e300 Symbol (34,255,12)",
        "graduated 1: 0 1: 0 Symbol (34,255,1000000)",
        "graduated -1e300: 1e9 1e-300: 1e9 Symbol (50,255,12) inflect Symbol (65,0,1000000,\"DejaVu Sans\",0,0)",
        "density 1e-300 circle width 1e300", "density 1e300 square color -1"}) {
    const Layer theme = small::theme(base, std::string("shade 1 with Valor, Valor * 1e300 ") + kind);
    const Map map = small::map({theme, base});
    painted(map);
    EXPECT_FALSE(renderLegend(map, 1).isNull());
  }
}

TEST_F(AbsurdMaps, ChartsAreNoLargerThanThePicture) {
  const Layer base = small::layer({small::region({small::square(0, 0, 100, 100)}, kFill)}, {""});
  const auto shaded = [&base](const std::string& words) {
    return painted(
        {small::theme(base, "shade 1 with " + words + " max size 1e300 units \"in\" at value 1e-300"), base});
  };
  const QImage pie = shaded("1 pie position above left border pen (1,1,0) style brush (2,65280)");
  EXPECT_EQ(pie.pixel(2, 2), 0xFF00FF00) << "a larger one would reach the corner nowhere";
  const QImage bar =
      shaded("1, 2, 1 bar stacked width 40 units \"pt\" style brush (2,255), brush (2,65280), brush (2,255)");
  EXPECT_EQ(bar.pixel(50, 50), 0xFF00FF00);
  EXPECT_EQ(bar.pixel(50, 95), 0xFF0000FF) << "of a larger one only the middle would be seen";
}

TEST_F(AbsurdMaps, ThemesOfAnyNumberOfValues) {
  const Layer base = small::squares(4, kFill);
  for (const std::string kind : {"pie", "bar", "bar stacked"}) {
    const auto shaded = [&](int values) {
      std::string with = "Valor";
      for (int i = 1; i < values; ++i) with += ",Valor";
      const Layer theme = small::theme(base, "shade 1 with " + with + " " + kind + " max size 1e300");
      return painted({theme, base});
    };
    EXPECT_NE(shaded(1000), painted({base})) << kind;
    EXPECT_EQ(shaded(1001), painted({base})) << kind << ": too many to be drawn";
    EXPECT_EQ(shaded(100'000), painted({base})) << kind;
  }
}

TEST_F(AbsurdMaps, LegendsOfAnyLength) {
  const Layer base = small::squares(3, kFill);
  for (const std::string& text : {std::string(100'000, 'W'), std::string(100'000, ' ')}) {
    for (const char* size : {"0", "8", "1000000000"}) {
      Layer theme = small::theme(base, "shade 1 with Valor ranges 0: 9 Brush (2,255)");
      theme.legend = small::legend("set legend layer 1 title \"" + text + "\" Font (\"Arial\",0," + size +
                                   ",0) ranges auto, \"" + text + "\" display on");
      const QImage image = renderLegend(small::map({theme, base}), 1);
      EXPECT_LT(image.width(), 3000);
    }
  }
}

}  // namespace
}  // namespace motor

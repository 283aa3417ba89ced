#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>

#include "motor/drawing/map_image.h"
#include "motor/drawing/small_maps.h"

// Where labels lie: on pictures of 100 by 100 pixels, a metre each.
namespace motor {
namespace {

// Where something is written in blue, with the edges of its letters; empty where nothing is.
QRect inkRect(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qBlue(image.pixel(x, y)) - qRed(image.pixel(x, y)) > 60) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

Layer labelled(const std::vector<ObjectPtr>& objects, const std::vector<std::string>& names) {
  Layer layer = small::layer(objects, names);
  layer.label.automatic = true;
  layer.label.font = {"Verdana", 0, 8, small::kBlue, kTransparent};
  return layer;
}

QImage painted(const std::vector<Layer>& layers) { return renderMap(small::map(layers), {100, 100}, 1); }

ObjectPtr villageAt(Point at, int points = 6) {
  Symbol disc;
  disc.shape = 34;
  disc.colour = small::kRed;
  disc.size = points;
  return small::point(at, disc);
}

const Pen kRiver{1, 2, 0xC0C0C0};

TEST(Labels, LieAroundAPointByTheirPosition) {
  struct Case {
    int position;
    int right, down;  // of the label's middle from the point: -1, 0 or 1
  };
  for (const Case& c : {Case{1, -1, -1}, Case{2, 0, -1}, Case{3, 1, -1}, Case{4, -1, 0}, Case{5, 1, 0}, Case{6, -1, 1},
                        Case{7, 0, 1}, Case{8, 1, 1}}) {
    Layer layer = labelled({villageAt({50, 50})}, {"Mina"});
    layer.label.position = c.position;
    const QPoint middle = inkRect(painted({layer})).center() - QPoint(50, 50);
    const auto side = [](int pixels) { return pixels > 4 ? 1 : pixels < -4 ? -1 : 0; };
    EXPECT_EQ(side(middle.x()), c.right) << c.position;
    EXPECT_EQ(side(middle.y()), c.down) << c.position;
  }
}

TEST(Labels, KeepTheirOffset) {
  Layer layer = labelled({villageAt({10, 50})}, {"Mina"});
  layer.label.position = 5;
  const int near = inkRect(painted({layer})).left();
  layer.label.offset = 15;  // points: 20 pixels
  EXPECT_NEAR(inkRect(painted({layer})).left() - near, 15, 1) << "5 pixels are kept anyway";
}

TEST(Labels, LieBesideALargeSymbol) {
  Layer layer = labelled({villageAt({30, 50}, 24)}, {"Mina"});
  layer.label.position = 5;
  EXPECT_GE(inkRect(painted({layer})).left(), 30 + 14);
}

// A label that has no room where it is wanted takes another place rather than lie on its point.
TEST(Labels, OfAPointAtTheEdgeTakeAnotherSide) {
  Layer layer = labelled({villageAt({92, 50})}, {"Mina"});
  layer.label.position = 5;
  const QRect ink = inkRect(painted({layer}));
  EXPECT_FALSE(ink.isEmpty());
  EXPECT_LT(ink.right(), 98);
  EXPECT_FALSE(ink.adjusted(0, 0, 0, 0).contains(92, 50));
}

TEST(Labels, FollowTheirLineUnlessTheyMayNot) {
  Layer layer = labelled({small::line({{20, 10}, {20, 90}}, kRiver)}, {"Río Mina"});
  const QRect along = inkRect(painted({layer}));
  EXPECT_GT(along.height(), 2 * along.width());
  layer.label.parallel = false;
  const QRect across = inkRect(painted({layer}));
  EXPECT_GT(across.width(), 2 * across.height());
}

TEST(Labels, LieAboveTheirLineWhereTheyAreToldTo) {
  Layer layer = labelled({small::line({{5, 30}, {95, 30}}, kRiver)}, {"Mina"});
  layer.label.position = 2;
  layer.label.offset = 2;
  EXPECT_LT(inkRect(painted({layer})).bottom(), 70);
  layer.label.position = 7;
  EXPECT_GT(inkRect(painted({layer})).top(), 70);
}

// The part of a line that is seen has the label, whole.
TEST(Labels, OfALongLineAreInThePicture) {
  const QRect ink = inkRect(painted({labelled({small::line({{-5000, 50}, {60, 50}}, kRiver)}, {"Mina"})}));
  EXPECT_FALSE(ink.isEmpty());
  EXPECT_GE(ink.left(), 2);
  EXPECT_LE(ink.right(), 60);
}

TEST(Labels, ThatCrossDoNotBothStand) {
  const std::vector<ObjectPtr> cross{small::line({{10, 10}, {90, 90}}, kRiver),
                                     small::line({{10, 90}, {90, 10}}, kRiver)};
  const QImage alone = painted({labelled({cross[0]}, {"Uno"}), small::layer({cross[1]})});
  EXPECT_EQ(inkRect(painted({labelled(cross, {"Uno", "Dos"})})), inkRect(alone));
}

TEST(Labels, PutByHandMayBeTurned) {
  Layer layer = labelled({villageAt({50, 50})}, {"Minas"});
  EditedLabel label;
  label.row = 1;
  label.angle = 90;
  layer.label.edited = {label};
  const QRect ink = inkRect(painted({layer}));
  EXPECT_GT(ink.height(), 2 * ink.width());
}

TEST(Labels, AreNoMoreThanTheirLayerMayHave) {
  Layer layer = labelled({villageAt({20, 20}), villageAt({20, 80})}, {"Mina", "Vega"});
  const auto labels = [&] {
    const QImage image = painted({layer});
    const auto isThere = [&](int top) { return inkRect(image.copy(0, top, 100, 50)).isEmpty() ? 0 : 1; };
    return isThere(0) + isThere(50);
  };
  EXPECT_EQ(labels(), 2);
  layer.label.maximum = 1;
  EXPECT_EQ(labels(), 1);
  layer.label.maximum = 0;
  EXPECT_EQ(labels(), 0);
  layer.label.maximum = -5;
  EXPECT_EQ(labels(), 0);
  EditedLabel label;
  label.row = 2;
  layer.label.edited = {label};
  EXPECT_EQ(labels(), 1) << "the one that was put by hand";
}

TEST(Labels, WiderThanThePictureAreBroken) {
  const QRect ink = inkRect(painted({labelled({small::region({small::square(0, 0, 100, 100)}, small::kNoBrush)},
                                              {"Tierras de la Mina Grande del Río"})}));
  EXPECT_FALSE(ink.isEmpty());
  EXPECT_GE(ink.left(), 2);
  EXPECT_LE(ink.right(), 97);
  EXPECT_GT(ink.height(), 18);
}

// Two roads cross: interleaved, the inside of one is open to the other's.
TEST(InterleavedLines, JoinAtCrossings) {
  const auto inkAtCrossing = [](int pattern) {
    const Pen pen{2, pattern, small::kBlue};
    const QImage image =
        painted({small::layer({small::line({{0, 50}, {100, 50}}, pen), small::line({{50, 0}, {50, 100}}, pen)})});
    return inkRect(image.copy(43, 48, 4, 4));  // where the upright road has its edge, inside the other
  };
  EXPECT_FALSE(inkAtCrossing(65).isEmpty());
  EXPECT_TRUE(inkAtCrossing(65 + 128).isEmpty());
}

}  // namespace
}  // namespace motor

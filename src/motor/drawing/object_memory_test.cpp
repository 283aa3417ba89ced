#include "motor/drawing/object_memory.h"

#include <gtest/gtest.h>

#include <QImage>
#include <utility>

#include "motor/drawing/map_image.h"
#include "motor/drawing/small_maps.h"

namespace motor {
namespace {

const Brush kFill{2, small::kRed, kTransparent};

QImage paintedOn(QSize size, const Map& map) { return renderMap(map, size, 1); }

TEST(ObjectMemory, AMapThatIsPaintedAgainElsewhereMakesNoShapeAnew) {
  const Map map = small::map({small::layer({small::region({small::square(20, 20, 80, 80)}, kFill)})});
  const SimplifiedPaths& paths = ObjectMemory::shared().paths;
  const std::size_t before = paths.madeCount();
  const QImage first = paintedOn({100, 100}, map);
  EXPECT_EQ(paths.madeCount(), before + 1);
  EXPECT_EQ(paintedOn({100, 100}, map), first);
  EXPECT_EQ(paths.madeCount(), before + 1);
}

// More zooms than are kept: shapes are made again, and the pictures are the same.
TEST(ObjectMemory, ManyZoomsAtATimeLookAsEachAlone) {
  const Map map = small::map({small::layer({small::region({small::square(20.3, 20.7, 80.1, 80.9)}, kFill)})});
  std::vector<QImage> first;
  for (int round = 0; round < 3; ++round) {
    for (std::size_t i = 0; i < 10; ++i) {
      QImage picture = paintedOn({4 << i, 4 << i}, map);
      if (round == 0) {
        first.push_back(std::move(picture));
      } else {
        EXPECT_EQ(picture, first[i]) << i;
      }
    }
  }
}

// Objects come and go, and one may live where another did.
TEST(ObjectMemory, AnObjectThatIsGoneIsNotTakenForAnother) {
  MapObject place;
  for (int i = 1; i < 50; ++i) {
    place = *small::region({small::square(0, 0, 2 * i, 90)}, kFill);
    const ObjectPtr object(&place, [](const MapObject*) {});
    const Map map = small::map({small::layer({object})});
    const QImage picture = paintedOn({100, 100}, map);
    EXPECT_EQ(picture.pixel(2 * i - 2, 50), 0xFFFF0000) << i;
    EXPECT_EQ(picture.pixel(2 * i + 1, 50), 0xFFFFFFFF) << i;
  }
}

}  // namespace
}  // namespace motor

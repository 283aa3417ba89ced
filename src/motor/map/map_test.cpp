#include "motor/map/map.h"

#include <gtest/gtest.h>

#include "motor/map/projected_objects.h"
#include "motor/tables/base_table.h"

namespace motor {
namespace {

constexpr const char* kUtm30 = "Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0";

ObjectPtr shape(MapObject::Kind kind, std::vector<Point> points) {
  auto object = std::make_shared<MapObject>();
  object->kind = kind;
  object->points = std::move(points);
  object->parts = {0};
  for (const Point& p : object->points) object->bounds.add(p);
  return object;
}

ObjectPtr square(double x, double y, double side) {
  return shape(MapObject::Kind::region, {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}, {x, y}});
}

// A table whose rows have the objects with these indexes.
TablePtr tableOf(const std::string& clause, std::vector<ObjectPtr> objects, std::vector<std::uint32_t> rows) {
  TableContents contents;
  contents.deleted.resize(rows.size(), false);
  contents.objects = ObjectSet(std::move(objects), std::move(rows));
  contents.hasObjects = true;
  contents.coordinateSystem = CoordinateSystem::fromClause(clause);
  return std::make_shared<const BaseTable>(std::move(contents));
}

// Another table of the same objects, that knows nothing of indexes.
class PlainTable : public Table {
 public:
  explicit PlainTable(TablePtr other) : other_(std::move(other)) {}
  const std::vector<Column>& columns() const override { return other_->columns(); }
  RowId rowCount() const override { return other_->rowCount(); }
  bool isDeleted(RowId row) const override { return row == 1; }
  Value value(RowId row, std::size_t column) const override { return other_->value(row, column); }
  const ObjectPtr& object(RowId row) const override { return other_->object(row); }
  bool hasObjects() const override { return true; }
  const CoordinateSystem& coordinateSystem() const override { return other_->coordinateSystem(); }
  const Box& bounds() const override { return other_->bounds(); }

 private:
  TablePtr other_;
};

Layer layerOf(TablePtr table) {
  Layer layer;
  layer.table = std::move(table);
  return layer;
}

Map projectedMap() {
  Map map;
  map.coordinateSystem = CoordinateSystem::fromClause(kUtm30);
  map.centre = {500000, 4500000};
  map.zoomMetres = 64000;
  return map;
}

TEST(MapTest, zoomIsTheWidthOfTheWindow) {
  const Map map = projectedMap();
  EXPECT_DOUBLE_EQ(map.unitsPerPixel(), 100);
  EXPECT_EQ(map.toMap({320, 240}), map.centre);
  EXPECT_EQ(map.toMap({0, 0}), (Point{468000, 4524000}));
  EXPECT_EQ(map.toPixel({532000, 4476000}), (Point{640, 480}));
  EXPECT_EQ(map.visibleBox(), (Box{468000, 4476000, 532000, 4524000}));
}

TEST(MapTest, zoomCountsMetresInOtherUnits) {
  Map map = projectedMap();
  map.coordinateSystem = CoordinateSystem::fromClause("NonEarth Units \"km\"");
  EXPECT_DOUBLE_EQ(map.unitsPerPixel(), 0.1);
}

TEST(MapTest, zoomFollowsTheParallelInDegrees) {
  Map map;
  map.zoomMetres = 640000;
  struct Case {
    double latitude;
    double metresPerDegree;  // of longitude on WGS 84
  };
  for (const Case& c : {Case{0, 111319.491}, Case{40, 85393.88}, Case{60, 55800.18}}) {
    map.centre = {-3, c.latitude};
    EXPECT_NEAR(1000 / map.unitsPerPixel(), c.metresPerDegree, 1) << c.latitude;
  }
  map.centre = {0, 90};
  EXPECT_LT(map.unitsPerPixel(), 1);
}

TEST(MapTest, showsABoxWholeWithAMargin) {
  Map map = projectedMap();
  map.showBox(Box{0, 0, 6400, 100}, 0);
  EXPECT_EQ(map.centre, (Point{3200, 50}));
  EXPECT_DOUBLE_EQ(map.zoomMetres, 6400);
  map.showBox(Box{0, 0, 640, 4800}, 0.02);
  EXPECT_DOUBLE_EQ(map.zoomMetres, 6400 * 1.04);
  map.showBox(Box{}, 0.02);
  EXPECT_DOUBLE_EQ(map.zoomMetres, 6400 * 1.04);
  map.showBox(Box{7, 8, 7, 8}, 0.02);
  EXPECT_EQ(map.centre, (Point{7, 8}));
  EXPECT_DOUBLE_EQ(map.zoomMetres, 6400 * 1.04);
}

TEST(MapTest, extentIsThatOfDisplayedLayers) {
  Map map = projectedMap();
  map.layers.push_back(layerOf(tableOf(kUtm30, {square(0, 0, 10)}, {0})));
  map.layers.push_back(layerOf(tableOf(kUtm30, {square(100, 100, 10)}, {0})));
  EXPECT_EQ(map.fullExtent(), (Box{0, 0, 110, 110}));
  map.layers[0].display = Display::off;
  EXPECT_EQ(map.fullExtent(), (Box{100, 100, 110, 110}));
  EXPECT_EQ(map.extentOf(map.layers[0]), (Box{0, 0, 10, 10}));
}

TEST(ProjectedObjectsTest, sharesTheTablesOwnInItsOwnSystem) {
  const TablePtr table = tableOf(kUtm30, {square(0, 0, 10)}, {0, 0});
  const auto set = projectedObjects(table, CoordinateSystem::fromClause(kUtm30));
  EXPECT_EQ(set.get(), &dynamic_cast<const BaseTable&>(*table).objectSet());
}

TEST(ProjectedObjectsTest, transformsOnceAndForgetsWithTheTable) {
  TablePtr table = tableOf(kUtm30, {square(500000, 4500000, 1000)}, {0, ObjectSet::kNone, 0});
  const CoordinateSystem longLat;
  std::weak_ptr<const ObjectSet> forgotten;
  {
    const auto set = projectedObjects(table, longLat);
    forgotten = set;
    EXPECT_EQ(projectedObjects(table, longLat), set);
    ASSERT_EQ(set->objects().size(), 1U);
    EXPECT_EQ(set->rowsOf(0).size(), 2U);
    EXPECT_NEAR(set->bounds().minX, -3, 1e-3);
    EXPECT_NEAR(set->bounds().minY, 40.65, 1e-2);
    EXPECT_EQ(set->objects()[0]->points.front(), set->objects()[0]->points.back());
  }
  EXPECT_FALSE(forgotten.expired());
  table.reset();
  EXPECT_TRUE(forgotten.expired());
}

TEST(ProjectedObjectsTest, takesAnyTable) {
  const ObjectPtr first = square(0, 0, 10);
  const ObjectPtr second = square(20, 0, 10);
  const auto plain =
      std::make_shared<const PlainTable>(tableOf(kUtm30, {first, second}, {0, 1, 0, ObjectSet::kNone, 1}));
  const auto set = projectedObjects(plain, CoordinateSystem::fromClause(kUtm30));
  EXPECT_EQ(set->objects(), (std::vector<ObjectPtr>{second, first}));
  EXPECT_EQ(set->indexOf(1), ObjectSet::kNone);  // deleted
  EXPECT_EQ(set->indexOf(3), 1U);
}

TEST(ProjectedObjectsTest, leavesOutWhatHasNoImage) {
  const auto set = projectedObjects(tableOf("NonEarth Units \"m\"", {square(0, 0, 10)}, {0}), CoordinateSystem());
  ASSERT_EQ(set->objects().size(), 1U);
  EXPECT_TRUE(set->objects()[0]->points.empty());
  EXPECT_TRUE(set->bounds().isEmpty());
}

class ObjectsAtTest : public testing::Test {
 protected:
  ObjectsAtTest() {
    map_.layers.push_back(layerOf(tableOf(kUtm30, {square(500000, 4500000, 1000)}, {ObjectSet::kNone, 0, 0})));
    map_.layers.push_back(layerOf(tableOf(kUtm30,
                                          {square(499000, 4499000, 5000), square(500400, 4500400, 100),
                                           shape(MapObject::Kind::polyline, {{500000, 4502000}, {502000, 4502000}}),
                                           shape(MapObject::Kind::point, {{496000, 4500000}})},
                                          {0, 1, 2, 3})));
  }

  std::vector<std::pair<std::size_t, RowId>> hits(Point p) const {
    std::vector<std::pair<std::size_t, RowId>> result;
    for (const Hit& hit : objectsAt(map_, p)) result.emplace_back(hit.layer, hit.row);
    return result;
  }

  using Hits = std::vector<std::pair<std::size_t, RowId>>;
  Map map_ = projectedMap();  // 100 m a pixel
};

TEST_F(ObjectsAtTest, goesFromTheTopDown) {
  EXPECT_EQ(hits({500450, 4500450}), (Hits{{0, 2}, {1, 1}, {1, 2}}));
  EXPECT_EQ(hits({499500, 4499500}), (Hits{{1, 1}}));
  EXPECT_EQ(hits({400000, 4499500}), (Hits{}));
}

TEST_F(ObjectsAtTest, hitsLinesAndPointsWithinTheTolerance) {
  EXPECT_EQ(hits({501000, 4502290}), (Hits{{1, 1}, {1, 3}}));
  EXPECT_EQ(hits({501000, 4502310}), (Hits{{1, 1}}));
  EXPECT_EQ(hits({496200, 4500200}), (Hits{{1, 4}}));
  EXPECT_EQ(hits({496250, 4500250}), (Hits{}));
  EXPECT_EQ(hits({498900, 4500000}), (Hits{}));  // regions have no tolerance
}

TEST_F(ObjectsAtTest, passesOverLayersThatAreNotThere) {
  const Point p{500100, 4500100};
  const auto without = [&](auto change) {
    const Map before = map_;
    change(map_.layers[1]);
    const Hits found = hits(p);
    map_ = before;
    return found;
  };
  EXPECT_EQ(hits(p), (Hits{{0, 2}, {1, 1}}));
  EXPECT_EQ(without([](Layer& layer) { layer.display = Display::off; }), (Hits{{0, 2}}));
  EXPECT_EQ(without([](Layer& layer) { layer.selectable = false; }), (Hits{{0, 2}}));
  EXPECT_EQ(without([](Layer& layer) {
              layer.zoomLayered = true;
              layer.maxZoom = 50000;
            }),
            (Hits{{0, 2}}));
  EXPECT_EQ(without([](Layer& layer) {
              layer.zoomLayered = true;
              layer.maxZoom = 64000;
            }),
            (Hits{{0, 2}, {1, 1}}));
}

TEST_F(ObjectsAtTest, countsAThemeAndItsBaseOnce) {
  Layer theme = map_.layers[0];
  theme.display = Display::value;
  map_.layers.insert(map_.layers.begin(), theme);
  EXPECT_EQ(hits({500100, 4500100}), (Hits{{0, 2}, {2, 1}}));
}

TEST_F(ObjectsAtTest, searchesInTheMapsSystem) {
  const Transformation toLongLat(map_.coordinateSystem, CoordinateSystem());
  const Point p = toLongLat(Point{500450, 4500450});
  map_.coordinateSystem = CoordinateSystem();
  map_.centre = p;
  EXPECT_EQ(hits(p), (Hits{{0, 2}, {1, 1}, {1, 2}}));
}

}  // namespace
}  // namespace motor

#include "motor/tables/select_relation.h"

#include <gtest/gtest.h>

#include "motor/tables/testing_select.h"

namespace motor {
namespace {

using testing_select::point;
using testing_select::rectangle;

ObjectPtr line(std::vector<Point> points) {
  auto object = std::make_shared<MapObject>();
  object->kind = MapObject::Kind::polyline;
  object->points = std::move(points);
  object->parts = {0};
  for (const Point& p : object->points) object->bounds.add(p);
  return object;
}

TEST(SelectRelationTest, tellsHowObjectsLie) {
  const ObjectPtr big = rectangle(0, 0, 10, 10);
  const ObjectPtr inner = rectangle(2, 2, 4, 4);
  const ObjectPtr across = rectangle(8, 8, 20, 9);
  const ObjectPtr band = rectangle(-5, 4, 15, 6);
  const ObjectPtr away = rectangle(30, 30, 40, 40);
  struct Case {
    const char* name;
    ObjectPtr a;
    ObjectPtr b;
    bool contains;
    bool containsEntire;
    bool intersects;
  };
  const Case cases[] = {
      {"inner", big, inner, true, true, true},
      {"inner, reversed", inner, big, false, false, true},
      {"across", big, across, false, false, true},
      {"band", big, band, true, false, true},
      {"away", big, away, false, false, false},
      {"itself", big, big, true, true, true},
      {"point inside", big, point(5, 5), true, true, true},
      {"point on the border", big, point(10, 5), true, true, true},
      {"point outside", big, point(11, 5), false, false, false},
      {"point and point", point(1, 1), point(1, 1), false, false, true},
      {"line through", big, line({{-1, 5}, {11, 5}}), true, false, true},
      {"line inside", big, line({{1, 5}, {9, 5}}), true, true, true},
      {"line beside", big, line({{11, 0}, {11, 10}}), false, false, false},
      {"lines that cross", line({{0, 0}, {2, 2}}), line({{0, 2}, {2, 0}}), false, false, true},
      {"line and point on it", line({{0, 0}, {2, 2}}), point(1, 1), false, false, true},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(related(SpatialRelation::contains, *c.a, *c.b), c.contains) << c.name;
    EXPECT_EQ(related(SpatialRelation::within, *c.b, *c.a), c.contains) << c.name;
    EXPECT_EQ(related(SpatialRelation::containsEntire, *c.a, *c.b), c.containsEntire) << c.name;
    EXPECT_EQ(related(SpatialRelation::entirelyWithin, *c.b, *c.a), c.containsEntire) << c.name;
    for (const auto relation :
         {SpatialRelation::intersects, SpatialRelation::containsPart, SpatialRelation::partlyWithin}) {
      EXPECT_EQ(related(relation, *c.a, *c.b), c.intersects) << c.name;
      EXPECT_EQ(related(mirrored(relation), *c.b, *c.a), c.intersects) << c.name;
    }
  }
}

}  // namespace
}  // namespace motor

#include "motor/session/cosmetic_table.h"

#include <gtest/gtest.h>

namespace motor {
namespace {

ObjectPtr pointAt(double x) {
  auto object = std::make_shared<MapObject>();
  object->kind = MapObject::Kind::point;
  object->points = {{x, 1}};
  object->parts = {0};
  object->bounds.add(object->points.front());
  return object;
}

using Pointer = std::shared_ptr<const CosmeticTable>;

TEST(CosmeticTableTest, neverChanges) {
  const CosmeticTable none{CoordinateSystem()};
  const Pointer one = none.with(pointAt(1));
  const Pointer two = one->with(pointAt(2));
  EXPECT_EQ(none.rowCount(), 0U);
  EXPECT_FALSE(none.hasObjects());
  EXPECT_EQ(one->rowCount(), 1U);
  EXPECT_EQ(two->rowCount(), 2U);
  EXPECT_EQ(one->bounds(), (Box{1, 1, 1, 1}));
  EXPECT_EQ(two->bounds(), (Box{1, 1, 2, 1}));
  EXPECT_EQ(two->object(2)->points.front(), (Point{2, 1}));
}

TEST(CosmeticTableTest, mayGrowInSeveralWays) {
  const Pointer one = CosmeticTable(CoordinateSystem()).with(pointAt(1));
  const Pointer two = one->with(pointAt(2));
  const Pointer other = one->with(pointAt(7));
  EXPECT_EQ(two->object(2)->points.front().x, 2);
  EXPECT_EQ(other->object(2)->points.front().x, 7);
  EXPECT_EQ(other->rowCount(), 2U);
}

TEST(CosmeticTableTest, sharesTheObjectsThatWereThere) {
  const ObjectPtr first = pointAt(0);
  std::vector<Pointer> tables{CosmeticTable(CoordinateSystem()).with(first)};
  for (int i = 1; i < 100; ++i) tables.push_back(tables.back()->with(pointAt(i)));
  EXPECT_EQ(first.use_count(), 2);
  EXPECT_EQ(tables.back()->rowCount(), 100U);
}

}  // namespace
}  // namespace motor

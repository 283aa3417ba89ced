#pragma once

#include <deque>
#include <memory>
#include <vector>

#include "motor/tables/table.h"

namespace motor {

// The objects drawn on a map's cosmetic layer; it has no columns. A table never changes: an object makes another one,
// which shares with it the objects that were there.
class CosmeticTable final : public Table {
 public:
  // Without objects.
  explicit CosmeticTable(CoordinateSystem system);

  // This table and one object more, which is in its coordinate system. Takes the same time however many there are, but
  // for the second object that one table gets.
  [[nodiscard]] std::shared_ptr<const CosmeticTable> with(ObjectPtr object) const;

  [[nodiscard]] const std::vector<Column>& columns() const override { return columns_; }
  [[nodiscard]] RowId rowCount() const override { return count_; }
  [[nodiscard]] bool isDeleted(RowId /*row*/) const override { return false; }
  [[nodiscard]] Value value(RowId /*row*/, std::size_t /*column*/) const override { return {}; }
  [[nodiscard]] const ObjectPtr& object(RowId row) const override { return (*objects_)[row - 1]; }
  [[nodiscard]] bool hasObjects() const override { return count_ > 0; }
  [[nodiscard]] const CoordinateSystem& coordinateSystem() const override { return system_; }
  [[nodiscard]] const Box& bounds() const override { return bounds_; }

 private:
  std::vector<Column> columns_;
  CoordinateSystem system_;
  std::shared_ptr<std::deque<ObjectPtr>> objects_;  // of this table the first `count_`; those behind are of later ones
  RowId count_ = 0;
  Box bounds_;
};

}  // namespace motor

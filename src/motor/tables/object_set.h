#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "motor/language/value.h"
#include "motor/tables/box_tree.h"
#include "motor/tables/coverage_grid.h"
#include "motor/tables/region_index.h"
#include "motor/tables/table.h"

namespace motor {

// The distinct objects of a table and the rows that share each. Objects are numbered from 0 in the order of the first
// row that has them.
class ObjectSet {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  ObjectSet() = default;
  // `indexByRow[row - 1]` is the object of a row, or kNone; every object is used by some row.
  ObjectSet(std::vector<ObjectPtr> objects, std::vector<std::uint32_t> indexByRow);
  // The objects of any table, told apart by address; rows that are deleted are left out.
  explicit ObjectSet(const Table& table);

  // The same rows with other shapes: `objects[i]` takes the place of object i.
  [[nodiscard]] ObjectSet withObjects(std::vector<ObjectPtr> objects) const;

  [[nodiscard]] const std::vector<ObjectPtr>& objects() const { return objects_; }
  // The object of a row (from 1), or kNone.
  [[nodiscard]] std::uint32_t indexOf(RowId row) const { return indexByRow_[row - 1]; }
  // The rows that share an object, ascending.
  [[nodiscard]] std::span<const RowId> rowsOf(std::uint32_t index) const;
  // The box around all objects.
  [[nodiscard]] const Box& bounds() const { return bounds_; }
  // The objects whose bounds meet `area`, ascending.
  [[nodiscard]] std::vector<std::uint32_t> objectsIn(const Box& area) const { return tree().find(area); }
  // Calls `visit` with each of them, in any order.
  template <typename Visit>
  void forObjectsIn(const Box& area, const Visit& visit) const {
    tree().visit(area, visit);
  }
  // Whether a region covers a point, as contains() has it; false for other objects. For one that is asked often.
  [[nodiscard]] bool covers(std::uint32_t index, Point p) const;

 private:
  [[nodiscard]] const BoxTree& tree() const { return tree_ ? *tree_ : grownTree(); }
  const BoxTree& grownTree() const;
  [[nodiscard]] bool coversExactly(std::uint32_t index, Point p) const;
  void groupRows();
  void addUpBounds();

  std::vector<ObjectPtr> objects_;
  std::vector<std::uint32_t> indexByRow_;
  std::vector<RowId> rows_;             // object after object
  std::vector<std::uint32_t> rowEnds_;  // of each object in rows_
  Box bounds_;
  mutable std::optional<BoxTree> tree_;                              // made when first asked
  mutable std::vector<std::shared_ptr<const RegionIndex>> regions_;  // of those asked so far
  mutable std::vector<CoverageGrid> grids_;                          // of the same
};

}  // namespace motor

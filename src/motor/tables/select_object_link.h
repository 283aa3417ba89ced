#pragma once

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "motor/tables/select_scope.h"

namespace motor {

// `a.obj contains b.obj` and the like between a table that is being joined and an earlier one. Each object of the
// earlier table is compared once, and only with the objects whose boxes meet its own.
class ObjectLink {
 public:
  // None when the condition is something else. `rows` are those of `table` that count, ascending.
  [[nodiscard]] static std::optional<ObjectLink> of(const SelectScope& scope, const Expression& condition,
                                                    std::size_t table, const std::vector<RowId>& rows);

  [[nodiscard]] std::size_t otherTable() const { return otherTable_; }
  // The rows that the condition joins to a row of the earlier table, ascending.
  [[nodiscard]] const std::vector<RowId>& rowsRelatedTo(RowId other);
  // Whether it joins these two.
  [[nodiscard]] bool holds(RowId other, RowId row);

 private:
  ObjectLink(const SelectScope& scope, SpatialRelation relation, std::size_t table, std::size_t otherTable,
             const std::vector<RowId>& rows);

  [[nodiscard]] std::vector<RowId> findRows(const MapObject& other) const;

  TablePtr table_;
  TablePtr other_;
  std::size_t otherTable_;
  SpatialRelation relation_;  // of the table's object to the earlier one's
  std::shared_ptr<const Transformation> toTable_;
  std::shared_ptr<const ObjectSet> objects_;
  std::vector<bool> counts_;  // by row - 1
  std::unordered_map<const MapObject*, std::vector<RowId>> known_;
};

}  // namespace motor

#include "motor/tables/select_object_link.h"

#include <algorithm>

#include "motor/language/expressions/operation.h"
#include "motor/tables/select_relation.h"

namespace motor {

namespace {

// The table whose object an expression is.
std::optional<std::size_t> tableOfObject(const SelectScope& scope, const Expression& expression) {
  const auto* reference = dynamic_cast<const NameReference*>(&expression);
  if (reference == nullptr) return std::nullopt;
  const RowBinding binding = scope.bind(*reference);
  if (binding.kind != RowBinding::Kind::object) return std::nullopt;
  return binding.table;
}

std::shared_ptr<const ObjectSet> objectsOf(const SelectTable& table) {
  if (table.base == nullptr) return std::make_shared<const ObjectSet>(*table.table);
  return {table.table, &table.base->objectSet()};
}

}  // namespace

std::optional<ObjectLink> ObjectLink::of(const SelectScope& scope, const Expression& condition, std::size_t table,
                                         const std::vector<RowId>& rows) {
  const auto* operation = dynamic_cast<const BinaryOperation*>(&condition);
  const auto relation = operation != nullptr ? spatialRelation(operation->op()) : std::nullopt;
  if (!relation) return std::nullopt;
  const auto left = tableOfObject(scope, *operation->left());
  const auto right = tableOfObject(scope, *operation->right());
  if (left == table && right && *right < table) return ObjectLink(scope, *relation, table, *right, rows);
  if (right == table && left && *left < table) return ObjectLink(scope, mirrored(*relation), table, *left, rows);
  return std::nullopt;
}

ObjectLink::ObjectLink(const SelectScope& scope, SpatialRelation relation, std::size_t table, std::size_t otherTable,
                       const std::vector<RowId>& rows)
    : table_(scope.tables()[table].table),
      other_(scope.tables()[otherTable].table),
      otherTable_(otherTable),
      relation_(relation),
      objects_(objectsOf(scope.tables()[table])),
      counts_(table_->rowCount(), false) {
  if (!(other_->coordinateSystem() == table_->coordinateSystem())) {
    toTable_ = std::make_shared<const Transformation>(other_->coordinateSystem(), table_->coordinateSystem());
  }
  for (const RowId row : rows) counts_[row - 1] = true;
}

const std::vector<RowId>& ObjectLink::rowsRelatedTo(RowId other) {
  const ObjectPtr& object = other_->object(other);
  const auto known = known_.find(object.get());
  if (known != known_.end()) return known->second;
  return known_.emplace(object.get(), object ? findRows(*object) : std::vector<RowId>()).first->second;
}

bool ObjectLink::holds(RowId other, RowId row) {
  const std::vector<RowId>& rows = rowsRelatedTo(other);
  return std::binary_search(rows.begin(), rows.end(), row);
}

std::vector<RowId> ObjectLink::findRows(const MapObject& other) const {
  const ObjectPtr image = toTable_ ? transformed(other, *toTable_) : nullptr;
  const MapObject& here = image ? *image : other;
  std::vector<RowId> rows;
  objects_->forObjectsIn(here.bounds, [&](std::uint32_t index) {
    if (!related(relation_, *objects_->objects()[index], here)) return;
    for (const RowId row : objects_->rowsOf(index)) {
      if (counts_[row - 1]) rows.push_back(row);
    }
  });
  std::sort(rows.begin(), rows.end());
  return rows;
}

}  // namespace motor

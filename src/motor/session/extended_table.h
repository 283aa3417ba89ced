#pragma once

#include <vector>

#include "motor/tables/table.h"

namespace motor {

// A table with one more column at its end, which only this session sees.
class ExtendedTable final : public Table {
 public:
  // `values` by row - 1, one a row of the table.
  ExtendedTable(TablePtr table, Column column, std::vector<Value> values);

  // The table without that column.
  [[nodiscard]] const Table& extended() const { return *table_; }

  [[nodiscard]] const std::vector<Column>& columns() const override { return columns_; }
  [[nodiscard]] RowId rowCount() const override { return table_->rowCount(); }
  [[nodiscard]] bool isDeleted(RowId row) const override { return table_->isDeleted(row); }
  [[nodiscard]] Value value(RowId row, std::size_t column) const override {
    return column + 1 < columns_.size() ? table_->value(row, column) : values_[row - 1];
  }
  [[nodiscard]] const std::string* text(RowId row, std::size_t column) const override {
    return column + 1 < columns_.size() ? table_->text(row, column) : nullptr;
  }
  [[nodiscard]] const ObjectPtr& object(RowId row) const override { return table_->object(row); }
  [[nodiscard]] bool hasObjects() const override { return table_->hasObjects(); }
  [[nodiscard]] const CoordinateSystem& coordinateSystem() const override { return table_->coordinateSystem(); }
  [[nodiscard]] const Box& bounds() const override { return table_->bounds(); }

 private:
  TablePtr table_;
  std::vector<Column> columns_;
  std::vector<Value> values_;
};

}  // namespace motor

#include "motor/session/extended_table.h"

namespace motor {

ExtendedTable::ExtendedTable(TablePtr table, Column column, std::vector<Value> values)
    : table_(std::move(table)), columns_(table_->columns()), values_(std::move(values)) {
  columns_.push_back(std::move(column));
  values_.resize(table_->rowCount());
}

}  // namespace motor

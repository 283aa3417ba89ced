#include "motor/tables/result_table.h"

#include <algorithm>
#include <unordered_set>

namespace motor {

ResultTable::ResultTable(ResultContents contents) : contents_(std::move(contents)) {}

Value ResultTable::value(RowId row, std::size_t column) const {
  const ResultContents::Data& data = contents_.data[column];
  if (const auto* values = std::get_if<std::vector<Value>>(&data)) return (*values)[row - 1];
  const auto& from = std::get<ResultContents::SourceColumn>(data);
  return contents_.sources[from.source].table->value(sourceRow(row, from.source), from.column);
}

const std::string* ResultTable::text(RowId row, std::size_t column) const {
  const auto* from = std::get_if<ResultContents::SourceColumn>(&contents_.data[column]);
  if (from == nullptr) return nullptr;
  return contents_.sources[from->source].table->text(sourceRow(row, from->source), from->column);
}

const ObjectPtr& ResultTable::object(RowId row) const { return base().table->object(sourceRow(row)); }

const Box& ResultTable::bounds() const {
  if (!bounds_) {
    bounds_.emplace();
    std::unordered_set<const MapObject*> seen;
    for (const RowId row : contents_.rows.front()) {
      const ObjectPtr& shape = base().table->object(row);
      if (shape && seen.insert(shape.get()).second) bounds_->add(shape->bounds);
    }
  }
  return *bounds_;
}

RowId ResultTable::baseRowCount() const {
  std::vector<RowId> rows = contents_.rows.front();
  std::erase_if(rows, [this](RowId row) { return base().table->isDeleted(row); });
  std::sort(rows.begin(), rows.end());
  return static_cast<RowId>(std::unique(rows.begin(), rows.end()) - rows.begin());
}

}  // namespace motor

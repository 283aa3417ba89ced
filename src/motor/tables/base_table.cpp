#include "motor/tables/base_table.h"

#include <cmath>

#include "motor/tables/table_reader.h"

namespace motor {
namespace {

const ObjectPtr kNoObject;

}  // namespace

BaseTable::BaseTable(TableContents contents) : contents_(std::move(contents)) {}

std::shared_ptr<const BaseTable> BaseTable::read(const std::filesystem::path& file) {
  return std::make_shared<const BaseTable>(readTable(file));
}

Value BaseTable::value(RowId row, std::size_t column) const {
  if (const TextColumn* texts = textColumn(column)) return texts->text(row);
  const double number = (*numbers(column))[row - 1];
  if (std::isnan(number)) return {};
  if (contents_.columns[column].type == Column::Type::logical) return number != 0;
  return number;
}

const std::string* BaseTable::text(RowId row, std::size_t column) const {
  const TextColumn* texts = textColumn(column);
  return texts == nullptr ? nullptr : &texts->text(row);
}

const ObjectPtr& BaseTable::object(RowId row) const {
  const std::uint32_t index = contents_.objects.indexOf(row);
  return index == ObjectSet::kNone ? kNoObject : contents_.objects.objects()[index];
}

const TextColumn* BaseTable::textColumn(std::size_t column) const {
  return std::get_if<TextColumn>(&contents_.data[column]);
}

const std::vector<double>* BaseTable::numbers(std::size_t column) const {
  return std::get_if<std::vector<double>>(&contents_.data[column]);
}

const std::vector<RowId>& BaseTable::rowsEqual(std::size_t column, std::string_view text) const {
  return std::get<TextColumn>(contents_.data[column]).rowsEqual(text);
}

}  // namespace motor

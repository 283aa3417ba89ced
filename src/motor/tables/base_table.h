#pragma once

#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "motor/tables/object_set.h"
#include "motor/tables/table.h"
#include "motor/tables/text_column.h"

namespace motor {

// What a reader gathers and a table is made of. All columns have `deleted.size()` rows.
struct TableContents {
  // Texts and dates are a TextColumn; numbers, integers and logicals (0, 1) are doubles, NaN where there is no value.
  using Data = std::variant<TextColumn, std::vector<double>>;

  std::vector<Column> columns;
  std::vector<Data> data;     // by column
  std::vector<bool> deleted;  // by row - 1
  ObjectSet objects;
  bool hasObjects = false;
  CoordinateSystem coordinateSystem;
};

// A table as it stands in a file, column by column in memory. It never changes; indexes are made when first asked for,
// so that a table is used by one thread.
class BaseTable final : public Table {
 public:
  explicit BaseTable(TableContents contents);

  // Reads a TAB (native, DBF, view or seamless) or MIF file. Throws EngineError when it is missing or damaged.
  [[nodiscard]] static std::shared_ptr<const BaseTable> read(const std::filesystem::path& file);

  [[nodiscard]] const std::vector<Column>& columns() const override { return contents_.columns; }
  [[nodiscard]] RowId rowCount() const override { return static_cast<RowId>(contents_.deleted.size()); }
  [[nodiscard]] bool isDeleted(RowId row) const override { return contents_.deleted[row - 1]; }
  // Dates are texts "YYYYMMDD", times "HHMMSSFFF", both together one after the other; no value is an empty Value.
  [[nodiscard]] Value value(RowId row, std::size_t column) const override;
  [[nodiscard]] const std::string* text(RowId row, std::size_t column) const override;
  [[nodiscard]] const ObjectPtr& object(RowId row) const override;
  [[nodiscard]] bool hasObjects() const override { return contents_.hasObjects; }
  [[nodiscard]] const CoordinateSystem& coordinateSystem() const override { return contents_.coordinateSystem; }
  [[nodiscard]] const Box& bounds() const override { return contents_.objects.bounds(); }

  // A column of texts or dates with its codes, dictionary and indexes; null for the others.
  [[nodiscard]] const TextColumn* textColumn(std::size_t column) const;
  // The numbers of a number, integer or logical column by row - 1, NaN where there is none; null for texts and dates.
  [[nodiscard]] const std::vector<double>* numbers(std::size_t column) const;

  // The rows of a text column whose text equals `text` as `=` compares, ascending.
  [[nodiscard]] const std::vector<RowId>& rowsEqual(std::size_t column, std::string_view text) const;

  // The distinct objects, the rows that share each, and where they lie.
  [[nodiscard]] const ObjectSet& objectSet() const { return contents_.objects; }
  // The distinct objects (indexes into objectSet()) whose bounds meet `area`, ascending.
  [[nodiscard]] std::vector<std::uint32_t> objectsIn(const Box& area) const {
    return contents_.objects.objectsIn(area);
  }

 private:
  TableContents contents_;
};

}  // namespace motor

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "motor/language/value.h"
#include "motor/tables/coordinate_system.h"
#include "motor/tables/geometry.h"

namespace motor {

using RowId = std::uint32_t;  // from 1; deleted rows keep theirs

struct Column {
  enum class Type : std::uint8_t { text, number, integer, logical, date };

  std::string name;
  Type type = Type::text;
  int width = 0;     // characters, or digits
  int decimals = 0;  // of a decimal number
};

// Rows, columns and objects; read-only. Base tables and results of Select look the same.
class Table {
 public:
  virtual ~Table() = default;

  [[nodiscard]] virtual const std::vector<Column>& columns() const = 0;
  [[nodiscard]] virtual RowId rowCount() const = 0;  // the highest row id
  [[nodiscard]] virtual bool isDeleted(RowId row) const = 0;
  // Column from 0, row from 1, both within range.
  [[nodiscard]] virtual Value value(RowId row, std::size_t column) const = 0;
  // The field of a text column where it is kept, without a copy; null for other columns and for computed values.
  [[nodiscard]] virtual const std::string* text(RowId /*row*/, std::size_t /*column*/) const { return nullptr; }
  // Null for a row without an object.
  [[nodiscard]] virtual const ObjectPtr& object(RowId row) const = 0;
  [[nodiscard]] virtual bool hasObjects() const = 0;
  [[nodiscard]] virtual const CoordinateSystem& coordinateSystem() const = 0;
  // The box around all objects, in the table's own system.
  [[nodiscard]] virtual const Box& bounds() const = 0;

  // What others have made of this table, kept for as long as it is there.
  [[nodiscard]] std::shared_ptr<void>& companion() const { return companion_; }

  // The index of a column by its name (without regard to case) or as "colN"; none when there is no such column.
  [[nodiscard]] std::optional<std::size_t> findColumn(std::string_view name) const;

 private:
  mutable std::shared_ptr<void> companion_;
};

using TablePtr = std::shared_ptr<const Table>;

}  // namespace motor

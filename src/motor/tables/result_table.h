#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "motor/tables/table.h"

namespace motor {

// A table that a result's rows come from, under the name it had in the session.
struct ResultSource {
  std::string name;
  TablePtr table;
};

// What a result is made of.
struct ResultContents {
  // A column of a source, or values computed once, by row - 1.
  struct SourceColumn {
    std::size_t source = 0;
    std::size_t column = 0;
  };
  using Data = std::variant<SourceColumn, std::vector<Value>>;

  std::vector<ResultSource> sources;     // at least one, never results themselves
  std::vector<std::vector<RowId>> rows;  // by source: the row behind each row of the result
  std::vector<Column> columns;
  std::vector<Data> data;  // by column
};

// The result of a Select: rows of its sources, seen through columns of its own. Objects, the coordinate system and the
// cursor that moves along are those of the first source.
class ResultTable final : public Table {
 public:
  explicit ResultTable(ResultContents contents);

  [[nodiscard]] const std::vector<Column>& columns() const override { return contents_.columns; }
  [[nodiscard]] RowId rowCount() const override { return static_cast<RowId>(contents_.rows.front().size()); }
  [[nodiscard]] bool isDeleted(RowId) const override { return false; }
  [[nodiscard]] Value value(RowId row, std::size_t column) const override;
  [[nodiscard]] const std::string* text(RowId row, std::size_t column) const override;
  [[nodiscard]] const ObjectPtr& object(RowId row) const override;
  [[nodiscard]] bool hasObjects() const override { return base().table->hasObjects(); }
  [[nodiscard]] const CoordinateSystem& coordinateSystem() const override { return base().table->coordinateSystem(); }
  [[nodiscard]] const Box& bounds() const override;

  [[nodiscard]] const std::vector<ResultSource>& sources() const { return contents_.sources; }
  [[nodiscard]] const ResultSource& base() const { return contents_.sources.front(); }
  // The row of a source behind a row of the result.
  [[nodiscard]] RowId sourceRow(RowId row, std::size_t source = 0) const { return contents_.rows[source][row - 1]; }
  // How many different rows of the base the result holds (a join may hold one several times; the figures of an
  // aggregate over no rows have none behind them).
  [[nodiscard]] RowId baseRowCount() const;
  [[nodiscard]] const ResultContents& contents() const { return contents_; }

 private:
  ResultContents contents_;
  mutable std::optional<Box> bounds_;  // made when first asked for
};

using ResultPtr = std::shared_ptr<const ResultTable>;

}  // namespace motor

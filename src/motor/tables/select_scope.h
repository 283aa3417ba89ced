#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "motor/language/expressions/name_reference.h"
#include "motor/language/value_set.h"
#include "motor/tables/base_table.h"
#include "motor/tables/select.h"

namespace motor {

// A table that a Select reads.
struct SelectTable {
  std::string name;
  TablePtr table;
  const BaseTable* base = nullptr;      // the same table, if it has the indexes of one
  const ResultTable* result = nullptr;  // the same table, if it is itself a result
};

// What a name means in a Select.
struct RowBinding {
  enum class Kind { column, object, rowId, outside };

  Kind kind = Kind::outside;
  std::size_t table = 0;
  std::size_t column = 0;
};

// The rows of a Select's tables taken together, one row of each; by table.
using RowTuple = std::vector<RowId>;

// Tuples that belong together, one after the other in one piece of memory.
class RowGroup {
 public:
  explicit RowGroup(std::size_t tables = 1) : tables_(tables) {}

  // Adds the rows that stand at `index` in each table's.
  void add(const std::vector<std::vector<RowId>>& rowsByTable, std::size_t index) {
    for (const std::vector<RowId>& rows : rowsByTable) rows_.push_back(rows[index]);
  }
  [[nodiscard]] std::size_t size() const { return rows_.size() / tables_; }
  [[nodiscard]] std::span<const RowId> operator[](std::size_t index) const {
    return {rows_.data() + index * tables_, tables_};
  }

 private:
  std::size_t tables_;
  std::vector<RowId> rows_;
};

// Names and functions inside a Select: columns of the current rows first, then whatever the session knows.
class SelectScope final : public Scope {
 public:
  // The tables must outlive the scope.
  SelectScope(const std::vector<SelectTable>& tables, const SelectContext& context);

  // Throws LanguageError for a column that its table does not have, and for one of a table that is not among these.
  [[nodiscard]] RowBinding bind(const NameReference& reference) const;
  // Whether an expression has the same value for all rows.
  [[nodiscard]] bool isConstant(const Expression& expression) const;
  // The tables whose rows an expression reads, bit i for table i.
  [[nodiscard]] std::uint64_t tablesOf(const Expression& expression) const;

  // Throws LanguageError for a name of an expression that means nothing here, so that it is told for no rows too: an
  // unknown one, or a column of a table that the Select does not read.
  void check(const Expression& expression) const;

  // The rows that names refer to from now on, also one of them alone.
  void setRow(std::size_t table, RowId row) { rows_[table] = row; }
  // The rows that aggregates run over; names refer to the first of them.
  void setGroup(const RowGroup* group);

  [[nodiscard]] const std::vector<SelectTable>& tables() const { return tables_; }
  [[nodiscard]] const SelectContext& context() const { return context_; }

  [[nodiscard]] Value name(const NameReference& reference) const override;
  [[nodiscard]] Value column(const std::string& table, double number, Position position) const override;
  [[nodiscard]] Value call(const FunctionCall& function, std::span<const Value> arguments) const override;
  [[nodiscard]] bool related(SpatialRelation relation, const ObjectPtr& left, const ObjectPtr& right,
                             Position position) const override;
  [[nodiscard]] Value aggregate(const Aggregate& aggregate) const override;
  [[nodiscard]] const ValueSet& values(const SelectStatement& select) const override;
  [[nodiscard]] bool hides(const NameReference& constant) const override;

 private:
  [[nodiscard]] std::optional<std::size_t> findTable(const std::string& name) const;
  // The same, of `table.column` as written in `text`; throws LanguageError when it is not among these.
  [[nodiscard]] std::size_t tableNamed(const std::string& name, Position position, const std::string& text) const;
  [[nodiscard]] RowBinding bindIn(std::size_t table, const NameReference& reference) const;
  [[nodiscard]] const RowBinding& bound(const NameReference& reference) const;
  [[nodiscard]] ObjectPtr objectInSession(std::size_t table, const ObjectPtr& object) const;
  // Where an aggregate's numbers come from: a table's own column of numbers where the expression is no more than that,
  // else what it gives for each tuple.
  struct NumberSource {
    const Expression* expression = nullptr;
    const std::vector<double>* column = nullptr;
    std::size_t table = 0;
  };
  [[nodiscard]] NumberSource sourceOf(const Expression& expression) const;
  // The number for a tuple; none where there is no value. Throws LanguageError for a value that is no number.
  [[nodiscard]] std::optional<double> numberAt(const NumberSource& source, std::span<const RowId> tuple) const;
  void goTo(std::span<const RowId> tuple) const { rows_.assign(tuple.begin(), tuple.end()); }

  const std::vector<SelectTable>& tables_;
  SelectContext context_;
  mutable RowTuple rows_;
  const RowGroup* group_ = nullptr;
  mutable std::size_t comparisons_ = 0;  // of objects, so far
  mutable std::unordered_map<const NameReference*, RowBinding> bindings_;
  mutable std::unordered_map<const MapObject*, ObjectPtr> transformed_;
  mutable std::unordered_map<const SelectStatement*, ValueSet> subselects_;
};

// An object with its points in another system.
[[nodiscard]] ObjectPtr transformed(const MapObject& object, const Transformation& transformation);

}  // namespace motor

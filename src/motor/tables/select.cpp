#include "motor/tables/select.h"

#include <algorithm>
#include <cmath>

#include "motor/language/expressions/aggregate.h"
#include "motor/tables/select_columns.h"
#include "motor/tables/select_join.h"
#include "motor/tables/select_keys.h"
#include "motor/tables/select_memory.h"
#include "motor/tables/select_scope.h"
#include "text/utf8.h"

namespace motor {

namespace {

constexpr std::size_t kMaximumTables = 16;

std::vector<SelectTable> findTables(const SelectStatement& statement, const SelectContext& context) {
  if (statement.tables.size() > kMaximumTables) {
    throw LanguageError(statement.position, "Select", "demasiadas tablas");
  }
  std::vector<SelectTable> tables;
  for (const Name& name : statement.tables) {
    SelectTable found{name.text, context.tables.find(name.text)};
    if (!found.table) throw EngineError("la tabla «" + name.text + "» no está abierta");
    const bool isTwice = std::any_of(tables.begin(), tables.end(), [&name](const SelectTable& table) {
      return text::equalsIgnoringCase(table.name, name.text);
    });
    if (isTwice) throw LanguageError(name.position, name.text, "la tabla está dos veces en From");
    found.base = dynamic_cast<const BaseTable*>(found.table.get());
    found.result = dynamic_cast<const ResultTable*>(found.table.get());
    tables.push_back(std::move(found));
  }
  return tables;
}

Column::Type typeOf(const std::vector<Value>& values) {
  for (const Value& value : values) {
    if (value.number() != nullptr) return Column::Type::number;
    if (value.logical() != nullptr) return Column::Type::logical;
    if (!value.isEmpty()) break;
  }
  return Column::Type::text;
}

bool isCount(const ExpressionPtr& expression) {
  const auto* aggregate = dynamic_cast<const Aggregate*>(expression.get());
  return aggregate != nullptr && aggregate->kind() == Aggregate::Kind::count;
}

// The columns of a table over a single row, which has no values and counts as deleted.
std::shared_ptr<const BaseTable> rowOfNothing(const Table& table) {
  TableContents contents;
  contents.columns = table.columns();
  for (const Column& column : contents.columns) {
    if (column.type == Column::Type::text || column.type == Column::Type::date) {
      TextColumn texts;
      texts.appendAbsent();
      contents.data.emplace_back(std::move(texts));
    } else {
      contents.data.emplace_back(std::vector<double>{std::nan("")});
    }
  }
  contents.deleted = {true};
  contents.objects = ObjectSet({}, {ObjectSet::kNone});
  contents.hasObjects = table.hasObjects();
  contents.coordinateSystem = table.coordinateSystem();
  return std::make_shared<const BaseTable>(std::move(contents));
}

// One Select from its tables to its result.
class Selection {
 public:
  Selection(const SelectStatement& statement, const SelectContext& context)
      : statement_(statement),
        tables_(findTables(statement, context)),
        scope_(tables_, context),
        columns_(outputColumns(statement, scope_)) {}

  ResultPtr run() {
    check();
    rows_ = joinRows(scope_, statement_.where.get(), statement_.position);
    const bool aggregates = std::any_of(columns_.begin(), columns_.end(), [](const OutputColumn& output) {
      return output.expression && aggregateIn(*output.expression) != nullptr;
    });
    if (aggregates && statement_.groupBy.empty() && count() == 0) {
      groupNothing();
    } else if (aggregates || !statement_.groupBy.empty()) {
      group(aggregates);
    }
    compute();
    sort();
    return std::make_shared<const ResultTable>(contents());
  }

 private:
  // What means nothing is told also where there is no row to evaluate it for.
  void check() const {
    for (const OutputColumn& output : columns_) {
      if (output.expression) scope_.check(*output.expression);
    }
    if (statement_.where) {
      if (const Aggregate* aggregate = aggregateIn(*statement_.where)) static_cast<void>(aggregate->evaluate(scope_));
      scope_.check(*statement_.where);
    }
    for (const SelectKey& key : statement_.groupBy) static_cast<void>(keyColumn(key, columns_, scope_));
    for (const SelectKey& key : statement_.orderBy) static_cast<void>(keyColumn(key, columns_, scope_));
  }

  [[nodiscard]] std::size_t count() const { return rows_.front().size(); }

  [[nodiscard]] std::vector<Value> evaluateAll(const Expression& expression, SelectMemory& memory) {
    memory.addValues(count());
    std::vector<Value> values;
    values.reserve(count());
    for (std::size_t i = 0; i < count(); ++i) {
      for (std::size_t table = 0; table < rows_.size(); ++table) scope_.setRow(table, rows_[table][i]);
      if (!members_.empty()) scope_.setGroup(&members_[i]);
      values.push_back(expression.evaluate(scope_));
      memory.addText(values.back());
    }
    scope_.setGroup(nullptr);
    return values;
  }

  [[nodiscard]] Ordinals ordinalsOfKey(const SelectKey& key, bool grouping) {
    const KeyColumn found = keyColumn(key, columns_, scope_);
    if (!found.output) return ordinalsOfBinding(found.binding, grouping);
    const OutputColumn& output = columns_[*found.output];
    if (!output.expression) return ordinalsOf(tables_[output.table], output.index, rows_[output.table], grouping);
    if (!grouping) return ordinalsOf(computed_[*found.output], false);
    if (aggregateIn(*output.expression) != nullptr) {
      throw LanguageError(key.position, output.column.name, "no se puede agrupar por una función de grupo");
    }
    SelectMemory untilGrouped;
    return ordinalsOf(evaluateAll(*output.expression, untilGrouped), true);
  }

  [[nodiscard]] Ordinals ordinalsOfBinding(const RowBinding& binding, bool grouping) const {
    const std::vector<RowId>& rows = rows_[binding.table];
    if (binding.kind == RowBinding::Kind::rowId) return {rows.begin(), rows.end()};
    return ordinalsOf(tables_[binding.table], binding.column, rows, grouping);
  }

  // Figures over no rows are one row all the same, with nothing behind it.
  void groupNothing() {
    for (SelectTable& table : tables_) {
      const auto nothing = rowOfNothing(*table.table);
      table = {table.name, nothing, nothing.get(), nullptr};
    }
    for (std::vector<RowId>& rows : rows_) rows = {1};
    members_.resize(1);
  }

  // Leaves one row of each group, the first, in the order of the keys.
  void group(bool aggregates) {
    std::vector<Ordinals> keys;
    for (const SelectKey& key : statement_.groupBy) keys.push_back(ordinalsOfKey(key, true));
    const RowGroups groups = groupRows(keys, count());
    std::vector<SortKeyOrdinals> sortKeys;
    for (const Ordinals& key : keys) {
      sortKeys.emplace_back();
      for (const std::uint32_t first : groups.first) sortKeys.back().ordinals.push_back(key[first]);
    }
    const std::vector<std::uint32_t> order = sortedIndexes(sortKeys, groups.first.size());
    if (aggregates) collectMembers(groups, order);
    std::vector<std::uint32_t> kept;
    for (const std::uint32_t index : order) kept.push_back(groups.first[index]);
    keepRows(kept);
  }

  void collectMembers(const RowGroups& groups, const std::vector<std::uint32_t>& order) {
    std::vector<std::uint32_t> place(order.size());
    for (std::size_t i = 0; i < order.size(); ++i) place[order[i]] = static_cast<std::uint32_t>(i);
    members_.assign(order.size(), RowGroup(rows_.size()));
    for (std::size_t i = 0; i < count(); ++i) members_[place[groups.groupOf[i]]].add(rows_, i);
  }

  void keepRows(const std::vector<std::uint32_t>& indexes) {
    for (std::vector<RowId>& rows : rows_) {
      std::vector<RowId> kept;
      kept.reserve(indexes.size());
      for (const std::uint32_t index : indexes) kept.push_back(rows[index]);
      rows = std::move(kept);
    }
  }

  void compute() {
    computed_.resize(columns_.size());
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      if (!columns_[i].expression) continue;
      computed_[i] = evaluateAll(*columns_[i].expression, memory_);
      columns_[i].column.type = isCount(columns_[i].expression) ? Column::Type::integer : typeOf(computed_[i]);
      for (const Value& value : computed_[i]) {
        const int width = static_cast<int>(text::length(value.toText()));
        columns_[i].column.width = std::max(columns_[i].column.width, width);
      }
    }
  }

  void sort() {
    if (statement_.orderBy.empty()) return;
    std::vector<SortKeyOrdinals> keys;
    for (const SelectKey& key : statement_.orderBy) keys.push_back({ordinalsOfKey(key, false), key.descending});
    const std::vector<std::uint32_t> order = sortedIndexes(keys, count());
    keepRows(order);
    for (std::vector<Value>& values : computed_) {
      if (values.empty()) continue;
      std::vector<Value> sorted;
      sorted.reserve(order.size());
      for (const std::uint32_t index : order) sorted.push_back(std::move(values[index]));
      values = std::move(sorted);
    }
  }

  // A result of results refers to the tables behind them.
  [[nodiscard]] ResultContents contents() {
    ResultContents contents;
    std::vector<std::size_t> firstSource;
    for (std::size_t table = 0; table < tables_.size(); ++table) {
      firstSource.push_back(contents.sources.size());
      addSources(contents, table);
    }
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      contents.columns.push_back(columns_[i].column);
      contents.data.push_back(columns_[i].expression ? ResultContents::Data(std::move(computed_[i]))
                                                     : dataOf(columns_[i], firstSource[columns_[i].table]));
    }
    return contents;
  }

  void addSources(ResultContents& contents, std::size_t table) const {
    const ResultTable* result = tables_[table].result;
    if (result == nullptr) {
      contents.sources.push_back({tables_[table].name, tables_[table].table});
      contents.rows.push_back(rows_[table]);
      return;
    }
    for (std::size_t source = 0; source < result->sources().size(); ++source) {
      contents.sources.push_back(result->sources()[source]);
      contents.rows.emplace_back();
      contents.rows.back().reserve(count());
      for (const RowId row : rows_[table]) contents.rows.back().push_back(result->sourceRow(row, source));
    }
  }

  [[nodiscard]] ResultContents::Data dataOf(const OutputColumn& output, std::size_t firstSource) {
    const ResultTable* result = tables_[output.table].result;
    if (result == nullptr) return ResultContents::SourceColumn{firstSource, output.index};
    const ResultContents::Data& inner = result->contents().data[output.index];
    if (const auto* from = std::get_if<ResultContents::SourceColumn>(&inner)) {
      return ResultContents::SourceColumn{firstSource + from->source, from->column};
    }
    memory_.addValues(count());
    std::vector<Value> values;
    values.reserve(count());
    for (const RowId row : rows_[output.table]) {
      values.push_back(result->value(row, output.index));
      memory_.addText(values.back());
    }
    return values;
  }

  const SelectStatement& statement_;
  std::vector<SelectTable> tables_;
  SelectScope scope_;
  std::vector<OutputColumn> columns_;
  std::vector<std::vector<RowId>> rows_;      // by table; entries of equal index belong together
  std::vector<RowGroup> members_;             // by row, when there are aggregates: the rows of its group
  std::vector<std::vector<Value>> computed_;  // by column; empty for a table's own
  SelectMemory memory_;                       // of the result
};

}  // namespace

ResultPtr select(const SelectStatement& statement, const SelectContext& context) {
  return Selection(statement, context).run();
}

}  // namespace motor

#include "motor/tables/select_join.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "motor/language/expressions/operation.h"
#include "motor/tables/select_filter.h"
#include "motor/tables/text_column.h"

namespace motor {

namespace {

constexpr std::size_t kMaximumTuples = 5'000'000;

using Tuples = std::vector<std::vector<RowId>>;

// Values that `=` takes as equal have the same key.
std::string joinKey(const Value& value) {
  std::string key = value.number() != nullptr ? "#" : "\"";
  key += value.number() != nullptr ? value.toText() : foldedForEquality(value.toText());
  return key;
}

class Join {
 public:
  Join(SelectScope& scope, const Expression* where) : scope_(scope) {
    for (const Expression* conjunct : conjunctsOf(where)) conditions_.push_back({conjunct, scope.tablesOf(*conjunct)});
  }

  Tuples run() {
    tuples_.push_back(rowsAlone(0));
    for (std::size_t table = 1; table < scope_.tables().size(); ++table) addTable(table);
    return std::move(tuples_);
  }

 private:
  struct Condition {
    const Expression* expression;
    std::uint64_t tables;
  };

  // The rows of a table that pass the conditions on it alone; conditions on no table count with the first.
  std::vector<RowId> rowsAlone(std::size_t table) {
    const std::uint64_t own = std::uint64_t{1} << table;
    std::vector<const Expression*> conjuncts;
    std::erase_if(conditions_, [&](const Condition& condition) {
      const bool alone = condition.tables == own || (table == 0 && condition.tables == 0);
      if (alone) conjuncts.push_back(condition.expression);
      return alone;
    });
    return filterRows(scope_, table, conjuncts);
  }

  void addTable(std::size_t table) {
    const std::vector<RowId> rows = rowsAlone(table);
    Tuples next(table + 1);
    if (const BinaryOperation* link = takeLink(table)) {
      addLinked(table, rows, *link, next);
    } else {
      addAll(rows, next);
    }
    tuples_ = std::move(next);
    filterTuples(table);
  }

  // A condition `a = b` between a column of the table and what earlier tables give, taken out of the others.
  const BinaryOperation* takeLink(std::size_t table) {
    const std::uint64_t own = std::uint64_t{1} << table;
    const auto isLink = [&](const Condition& condition) {
      const auto* operation = dynamic_cast<const BinaryOperation*>(condition.expression);
      if (operation == nullptr || operation->op() != Operator::equal) return false;
      const std::uint64_t left = scope_.tablesOf(*operation->left());
      const std::uint64_t right = scope_.tablesOf(*operation->right());
      return (left == own && right != 0 && right < own) || (right == own && left != 0 && left < own);
    };
    const auto found = std::find_if(conditions_.begin(), conditions_.end(), isLink);
    if (found == conditions_.end()) return nullptr;
    const auto* link = static_cast<const BinaryOperation*>(found->expression);
    conditions_.erase(found);
    return link;
  }

  void addLinked(std::size_t table, const std::vector<RowId>& rows, const BinaryOperation& link, Tuples& next) {
    const bool ownIsLeft = scope_.tablesOf(*link.left()) == std::uint64_t{1} << table;
    const Expression& own = ownIsLeft ? *link.left() : *link.right();
    const Expression& others = ownIsLeft ? *link.right() : *link.left();
    std::unordered_map<std::string, std::vector<RowId>> rowsByKey;
    for (const RowId row : rows) {
      scope_.setRow(table, row);
      const Value value = own.evaluate(scope_);
      if (!value.isEmpty()) rowsByKey[joinKey(value)].push_back(row);
    }
    for (std::size_t i = 0; i < tuples_.front().size(); ++i) {
      setTuple(i);
      const auto matching = rowsByKey.find(joinKey(others.evaluate(scope_)));
      if (matching == rowsByKey.end()) continue;
      for (const RowId row : matching->second) append(next, i, row);
    }
  }

  void addAll(const std::vector<RowId>& rows, Tuples& next) const {
    for (std::size_t i = 0; i < tuples_.front().size(); ++i) {
      for (const RowId row : rows) append(next, i, row);
    }
  }

  void append(Tuples& next, std::size_t tuple, RowId row) const {
    if (next.front().size() >= kMaximumTuples)
      throw EngineError("el resultado de la unión de tablas es demasiado grande");
    for (std::size_t table = 0; table < tuples_.size(); ++table) next[table].push_back(tuples_[table][tuple]);
    next.back().push_back(row);
  }

  void setTuple(std::size_t tuple) {
    for (std::size_t table = 0; table < tuples_.size(); ++table) scope_.setRow(table, tuples_[table][tuple]);
  }

  // Keeps the tuples that pass the conditions on tables up to this one.
  void filterTuples(std::size_t table) {
    const std::uint64_t known = (std::uint64_t{2} << table) - 1;
    for (const Condition& condition : conditions_) {
      if ((condition.tables & ~known) == 0) keepWhere(*condition.expression);
    }
    std::erase_if(conditions_, [known](const Condition& condition) { return (condition.tables & ~known) == 0; });
  }

  void keepWhere(const Expression& condition) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < tuples_.front().size(); ++i) {
      setTuple(i);
      if (!holds(condition, scope_)) continue;
      for (std::vector<RowId>& rows : tuples_) rows[kept] = rows[i];
      ++kept;
    }
    for (std::vector<RowId>& rows : tuples_) rows.resize(kept);
  }

  SelectScope& scope_;
  std::vector<Condition> conditions_;
  Tuples tuples_;
};

}  // namespace

std::vector<std::vector<RowId>> joinRows(SelectScope& scope, const Expression* where, Position position) {
  if (scope.tables().size() > 1 && where == nullptr) {
    throw LanguageError(position, "Select", "varias tablas sólo se unen con una condición Where");
  }
  return Join(scope, where).run();
}

}  // namespace motor

#include "motor/tables/select_filter.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <numeric>
#include <optional>

#include "motor/language/comparison.h"
#include "motor/language/expressions/operation.h"
#include "motor/language/like_pattern.h"
#include "motor/tables/select_relation.h"

namespace motor {

namespace {

using RowTest = std::function<bool(RowId)>;

// `column op constant`, whichever way round it is written.
struct ColumnCondition {
  RowBinding column;
  Operator op = Operator::equal;
  Value constant;
};

Operator swapped(Operator op) {
  switch (op) {
    case Operator::less:
      return Operator::greater;
    case Operator::lessOrEqual:
      return Operator::greaterOrEqual;
    case Operator::greater:
      return Operator::less;
    case Operator::greaterOrEqual:
      return Operator::lessOrEqual;
    default:
      return op;
  }
}

// The conditions of a Where that need no evaluation row by row.
class Planner {
 public:
  Planner(SelectScope& scope, std::size_t table) : scope_(scope), table_(table), source_(scope.tables()[table]) {}

  // The rows for which a conjunct is true, if an index knows them.
  std::optional<std::vector<RowId>> rowsOf(const Expression& conjunct) {
    const auto* operation = dynamic_cast<const BinaryOperation*>(&conjunct);
    if (operation == nullptr) return std::nullopt;
    if (spatialRelation(operation->op())) return rowsOfRelation(*operation);
    const auto condition = conditionOf(*operation);
    if (!condition) return std::nullopt;
    if (condition->column.kind == RowBinding::Kind::rowId) {
      return condition->op == Operator::equal ? rowNumbered(condition->constant) : std::nullopt;
    }
    const bool isIndexed = condition->column.kind == RowBinding::Kind::column &&
                           condition->constant.text() != nullptr && source_.base != nullptr &&
                           source_.base->textColumn(condition->column.column) != nullptr;
    if (!isIndexed) return std::nullopt;
    if (condition->op != Operator::equal) return rowsOfTexts(*condition);
    return source_.base->rowsEqual(condition->column.column, *condition->constant.text());
  }

  // A test that is quicker than evaluating the conjunct, if there is one.
  std::optional<RowTest> testOf(const Expression& conjunct) {
    const auto* operation = dynamic_cast<const BinaryOperation*>(&conjunct);
    if (operation == nullptr || source_.base == nullptr || spatialRelation(operation->op())) return std::nullopt;
    const auto condition = conditionOf(*operation);
    if (!condition || condition->column.kind != RowBinding::Kind::column) return std::nullopt;
    if (condition->constant.text() != nullptr) return textTest(*condition);
    if (condition->constant.number() != nullptr) return numberTest(*condition);
    return std::nullopt;
  }

 private:
  std::optional<RowBinding> bindingOf(const Expression& expression) const {
    const auto* reference = dynamic_cast<const NameReference*>(&expression);
    if (reference == nullptr) return std::nullopt;
    const RowBinding binding = scope_.bind(*reference);
    if (binding.kind == RowBinding::Kind::outside || binding.table != table_) return std::nullopt;
    return binding;
  }

  std::optional<ColumnCondition> conditionOf(const BinaryOperation& operation) const {
    if (precedence(operation.op()) != precedence(Operator::equal)) return std::nullopt;
    const auto left = bindingOf(*operation.left());
    if (left && scope_.isConstant(*operation.right())) {
      return ColumnCondition{*left, operation.op(), operation.right()->evaluate(scope_)};
    }
    const auto right = bindingOf(*operation.right());
    if (right && operation.op() != Operator::like && scope_.isConstant(*operation.left())) {
      return ColumnCondition{*right, swapped(operation.op()), operation.left()->evaluate(scope_)};
    }
    return std::nullopt;
  }

  std::optional<std::vector<RowId>> rowNumbered(const Value& constant) const {
    if (constant.number() == nullptr) return std::nullopt;
    const double row = *constant.number();
    const bool exists = row >= 1 && row <= source_.table->rowCount() && row == std::floor(row);
    if (!exists || source_.table->isDeleted(static_cast<RowId>(row))) return std::vector<RowId>();
    return std::vector<RowId>{static_cast<RowId>(row)};
  }

  // The table's objects are tested once each, however many rows share them.
  std::optional<std::vector<RowId>> rowsOfRelation(const BinaryOperation& operation) const {
    const auto left = bindingOf(*operation.left());
    const auto right = bindingOf(*operation.right());
    const bool leftIsObject = left && left->kind == RowBinding::Kind::object;
    const bool rightIsObject = right && right->kind == RowBinding::Kind::object;
    if (leftIsObject == rightIsObject) return std::nullopt;
    const Expression& other = leftIsObject ? *operation.right() : *operation.left();
    if (!scope_.isConstant(other)) return std::nullopt;
    const Value value = other.evaluate(scope_);
    if (value.object() == nullptr || *value.object() == nullptr) return std::nullopt;
    const SpatialRelation relation = *spatialRelation(operation.op());
    return rowsRelated(leftIsObject ? relation : mirrored(relation), **value.object());
  }

  std::vector<RowId> rowsRelated(SpatialRelation relation, const MapObject& other) const {
    const Transformation toTable(scope_.context().coordinateSystem, source_.table->coordinateSystem());
    const ObjectPtr image = transformed(other, toTable);
    if (source_.base != nullptr) return rowsRelated(relation, *image, source_.base->objectSet());
    return rowsRelated(relation, *image, ObjectSet(*source_.table));
  }

  std::vector<RowId> rowsRelated(SpatialRelation relation, const MapObject& other, const ObjectSet& set) const {
    std::vector<RowId> rows;
    set.forObjectsIn(other.bounds, [&](std::uint32_t index) {
      if (!related(relation, *set.objects()[index], other)) return;
      const auto shared = set.rowsOf(index);
      rows.insert(rows.end(), shared.begin(), shared.end());
    });
    std::erase_if(rows, [this](RowId row) { return source_.table->isDeleted(row); });
    std::sort(rows.begin(), rows.end());
    return rows;
  }

  // Where texts repeat: each text is tested once, and the index knows the rows of those that pass.
  std::optional<std::vector<RowId>> rowsOfTexts(const ColumnCondition& condition) const {
    constexpr std::size_t kRowsOfText = 8;  // from so many on, texts repeat
    constexpr std::size_t kFewRows = 16;    // one of so many
    const TextColumn& column = *source_.base->textColumn(condition.column.column);
    const std::vector<std::string>& texts = column.dictionary();
    const std::size_t rows = column.codes().size();
    if (texts.size() * kRowsOfText > rows) return std::nullopt;
    const std::string& constant = *condition.constant.text();
    const LikePattern pattern(condition.op == Operator::like ? constant : "");
    std::vector<bool> passes(texts.size());
    for (std::size_t code = 0; code < texts.size(); ++code) {
      passes[code] = condition.op == Operator::like ? pattern.matchesFolded(column.foldedForLike()[code])
                                                    : passesText(texts[code], condition.op, constant, pattern);
    }
    return column.rowsMarked(passes, rows / kFewRows);
  }

  // Tests each text that is met once, then only its code.
  std::optional<RowTest> textTest(const ColumnCondition& condition) const {
    const TextColumn* column = source_.base->textColumn(condition.column.column);
    if (column == nullptr) return std::nullopt;
    enum class Known : std::uint8_t { nothing, fails, passes };
    return [column, op = condition.op, constant = *condition.constant.text(),
            pattern = LikePattern(condition.op == Operator::like ? *condition.constant.text() : ""),
            known = std::vector<Known>(column->dictionary().size(), Known::nothing)](RowId row) mutable {
      const TextColumn::Code code = column->code(row);
      if (code == TextColumn::kAbsent) return false;
      if (known[code] == Known::nothing) {
        known[code] = passesText(column->dictionary()[code], op, constant, pattern) ? Known::passes : Known::fails;
      }
      return known[code] == Known::passes;
    };
  }

  static bool passesText(const std::string& text, Operator op, const std::string& constant,
                         const LikePattern& pattern) {
    if (op == Operator::like) return pattern.matches(text);
    if (op == Operator::equal || op == Operator::notEqual) return equalTexts(text, constant) == (op == Operator::equal);
    return satisfies(orderTexts(text, constant), op);
  }

  // No number comes before all numbers.
  std::optional<RowTest> numberTest(const ColumnCondition& condition) const {
    const std::vector<double>* numbers = source_.base->numbers(condition.column.column);
    if (numbers == nullptr || condition.op == Operator::like) return std::nullopt;
    return [numbers, op = condition.op, constant = *condition.constant.number()](RowId row) {
      const double number = (*numbers)[row - 1];
      if (std::isnan(number) || number < constant) return satisfies(std::weak_ordering::less, op);
      return satisfies(number > constant ? std::weak_ordering::greater : std::weak_ordering::equivalent, op);
    };
  }

  SelectScope& scope_;
  std::size_t table_;
  const SelectTable& source_;
};

std::vector<RowId> allRows(const Table& table) {
  std::vector<RowId> rows;
  rows.reserve(table.rowCount());
  for (RowId row = 1; row <= table.rowCount(); ++row) {
    if (!table.isDeleted(row)) rows.push_back(row);
  }
  return rows;
}

void collectConjuncts(const Expression* expression, std::vector<const Expression*>& conjuncts) {
  const auto* operation = dynamic_cast<const BinaryOperation*>(expression);
  if (operation != nullptr && operation->op() == Operator::logicalAnd) {
    collectConjuncts(operation->left().get(), conjuncts);
    collectConjuncts(operation->right().get(), conjuncts);
  } else {
    conjuncts.push_back(expression);
  }
}

// The smallest set of rows that an index gives; its conjunct is done with.
std::vector<RowId> startingRows(Planner& planner, const Table& table, std::vector<const Expression*>& conjuncts) {
  std::optional<std::vector<RowId>> best;
  std::size_t used = 0;
  for (std::size_t i = 0; i < conjuncts.size(); ++i) {
    auto rows = planner.rowsOf(*conjuncts[i]);
    if (!rows || (best && best->size() <= rows->size())) continue;
    best = std::move(rows);
    used = i;
  }
  if (!best) return allRows(table);
  conjuncts.erase(conjuncts.begin() + static_cast<std::ptrdiff_t>(used));
  return std::move(*best);
}

}  // namespace

std::vector<const Expression*> conjunctsOf(const Expression* where) {
  std::vector<const Expression*> conjuncts;
  if (where != nullptr) collectConjuncts(where, conjuncts);
  return conjuncts;
}

std::vector<RowId> filterRows(SelectScope& scope, std::size_t table, const std::vector<const Expression*>& conjuncts) {
  Planner planner(scope, table);
  std::vector<const Expression*> left = conjuncts;
  std::vector<RowId> rows = startingRows(planner, *scope.tables()[table].table, left);
  for (const Expression* conjunct : left) {
    if (const auto test = planner.testOf(*conjunct)) {
      std::erase_if(rows, [&test](RowId row) { return !(*test)(row); });
      continue;
    }
    std::erase_if(rows, [&](RowId row) {
      scope.setRow(table, row);
      return !holds(*conjunct, scope);
    });
  }
  return rows;
}

bool holds(const Expression& expression, const Scope& scope) {
  const auto result = truth(expression.evaluate(scope));
  if (!result) throw LanguageError(expression.position(), "Where", "se esperaba un valor lógico");
  return *result;
}

}  // namespace motor

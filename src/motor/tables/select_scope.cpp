#include "motor/tables/select_scope.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "motor/language/expressions/aggregate.h"
#include "motor/language/expressions/column_by_number.h"
#include "motor/language/expressions/set_comparison.h"
#include "motor/tables/select_relation.h"
#include "text/utf8.h"

namespace motor {

namespace {

// Of one Select, pair by pair.
constexpr std::size_t kMaximumComparisons = 1'000'000;

bool isObjectName(const std::string& name) {
  return text::equalsIgnoringCase(name, "obj") || text::equalsIgnoringCase(name, "object");
}

}  // namespace

SelectScope::SelectScope(const std::vector<SelectTable>& tables, const SelectContext& context)
    : tables_(tables), context_(context), rows_(tables.size(), 1) {}

std::optional<std::size_t> SelectScope::findTable(const std::string& name) const {
  for (std::size_t i = 0; i < tables_.size(); ++i) {
    if (text::equalsIgnoringCase(tables_[i].name, name)) return i;
  }
  return std::nullopt;
}

std::size_t SelectScope::tableNamed(const std::string& name, Position position, const std::string& text) const {
  const auto table = findTable(name);
  if (!table) throw LanguageError(position, text, "la tabla «" + name + "» no está en From");
  return *table;
}

RowBinding SelectScope::bindIn(std::size_t table, const NameReference& reference) const {
  if (const auto column = tables_[table].table->findColumn(reference.name())) {
    return {RowBinding::Kind::column, table, *column};
  }
  if (isObjectName(reference.name())) return {RowBinding::Kind::object, table, 0};
  if (text::equalsIgnoringCase(reference.name(), "rowid")) return {RowBinding::Kind::rowId, table, 0};
  return {};
}

RowBinding SelectScope::bind(const NameReference& reference) const {
  if (!reference.table().empty()) {
    const std::size_t table = tableNamed(reference.table(), reference.position(), reference.text());
    const RowBinding binding = bindIn(table, reference);
    if (binding.kind != RowBinding::Kind::outside) return binding;
    throw LanguageError(reference.position(), reference.text(), "la tabla no tiene esa columna");
  }
  for (std::size_t table = 0; table < tables_.size(); ++table) {
    const RowBinding binding = bindIn(table, reference);
    if (binding.kind != RowBinding::Kind::outside) return binding;
  }
  return {};
}

const RowBinding& SelectScope::bound(const NameReference& reference) const {
  const auto known = bindings_.find(&reference);
  return known != bindings_.end() ? known->second : bindings_.emplace(&reference, bind(reference)).first->second;
}

bool SelectScope::isConstant(const Expression& expression) const { return tablesOf(expression) == 0; }

std::uint64_t SelectScope::tablesOf(const Expression& expression) const {
  std::uint64_t used = 0;
  if (const auto* reference = dynamic_cast<const NameReference*>(&expression)) {
    const RowBinding& binding = bound(*reference);
    if (binding.kind != RowBinding::Kind::outside) used |= std::uint64_t{1} << binding.table;
  } else if (const auto* byNumber = dynamic_cast<const ColumnByNumber*>(&expression)) {
    const bool isBare = byNumber->table().empty();
    used |= std::uint64_t{1} << (isBare ? 0 : tableNamed(byNumber->table(), byNumber->position(), byNumber->table()));
  } else if (dynamic_cast<const Aggregate*>(&expression) != nullptr) {
    used |= 1;
  }
  for (const Expression* child : expression.children()) used |= tablesOf(*child);
  return used;
}

void SelectScope::check(const Expression& expression) const {
  if (const auto* reference = dynamic_cast<const NameReference*>(&expression)) {
    const bool isOutside = bound(*reference).kind == RowBinding::Kind::outside;
    if (isOutside && !reference->colour()) static_cast<void>(context_.session.name(*reference));
  } else if (dynamic_cast<const ColumnByNumber*>(&expression) != nullptr) {
    static_cast<void>(tablesOf(expression));
  } else if (const auto* comparison = dynamic_cast<const SetComparison*>(&expression)) {
    if (comparison->select()) static_cast<void>(values(*comparison->select()));
  }
  for (const Expression* child : expression.children()) check(*child);
}

void SelectScope::setGroup(const RowGroup* group) {
  group_ = group;
  if (group != nullptr && group->size() > 0) goTo((*group)[0]);
}

Value SelectScope::name(const NameReference& reference) const {
  const RowBinding& binding = bound(reference);
  if (binding.kind == RowBinding::Kind::outside) return context_.session.name(reference);
  const RowId row = rows_[binding.table];
  const Table& table = *tables_[binding.table].table;
  switch (binding.kind) {
    case RowBinding::Kind::column:
      return table.value(row, binding.column);
    case RowBinding::Kind::object:
      return objectInSession(binding.table, table.object(row));
    default:
      return static_cast<double>(row);
  }
}

Value SelectScope::column(const std::string& table, double number, Position position) const {
  const std::size_t index = table.empty() ? 0 : tableNamed(table, position, table);
  const Table& source = *tables_[index].table;
  if (!(number >= 1 && number <= static_cast<double>(source.columns().size())) || std::floor(number) != number) {
    throw LanguageError(position, "col", "la tabla no tiene esa columna");
  }
  return source.value(rows_[index], static_cast<std::size_t>(number) - 1);
}

Value SelectScope::call(const FunctionCall& function, std::span<const Value> arguments) const {
  return context_.session.call(function, arguments);
}

bool SelectScope::related(SpatialRelation relation, const ObjectPtr& left, const ObjectPtr& right,
                          Position /*position*/) const {
  if (++comparisons_ > kMaximumComparisons) {
    throw EngineError("hay que comparar demasiados pares de objetos: la condición no permite usar su índice");
  }
  return motor::related(relation, *left, *right);
}

SelectScope::NumberSource SelectScope::sourceOf(const Expression& expression) const {
  const auto* reference = dynamic_cast<const NameReference*>(&expression);
  if (reference == nullptr || bound(*reference).kind != RowBinding::Kind::column) return {&expression};
  const RowBinding& binding = bound(*reference);
  const SelectTable& table = tables_[binding.table];
  const bool isLogical = table.table->columns()[binding.column].type == Column::Type::logical;
  if (table.base == nullptr || isLogical) return {&expression};
  return {&expression, table.base->numbers(binding.column), binding.table};
}

std::optional<double> SelectScope::numberAt(const NumberSource& source, std::span<const RowId> tuple) const {
  if (source.column != nullptr) {
    const double number = (*source.column)[tuple[source.table] - 1];
    return std::isnan(number) ? std::nullopt : std::optional(number);
  }
  goTo(tuple);
  const Value value = source.expression->evaluate(*this);
  if (value.isEmpty()) return std::nullopt;
  if (value.number() == nullptr) {
    throw LanguageError(source.expression->position(), "función de grupo", "se esperaba un número");
  }
  return *value.number();
}

Value SelectScope::aggregate(const Aggregate& aggregate) const {
  if (group_ == nullptr) return Scope::aggregate(aggregate);
  if (aggregate.kind() == Aggregate::Kind::count) return static_cast<double>(group_->size());
  double total = 0;
  double weights = 0;
  double least = std::numeric_limits<double>::infinity();
  double greatest = -least;
  const NumberSource values = sourceOf(*aggregate.value());
  std::optional<NumberSource> weighing;
  if (aggregate.weight()) weighing = sourceOf(*aggregate.weight());
  for (std::size_t i = 0; i < group_->size(); ++i) {
    const std::optional<double> number = numberAt(values, (*group_)[i]);
    if (!number) continue;
    const double weight = weighing ? numberAt(*weighing, (*group_)[i]).value_or(0) : 1;
    total += *number * weight;
    weights += weight;
    least = std::min(least, *number);
    greatest = std::max(greatest, *number);
  }
  if (group_->size() > 0) goTo((*group_)[0]);
  if (!std::isfinite(total)) {
    throw LanguageError(aggregate.position(), "función de grupo", "el resultado no es un número finito");
  }
  if (greatest < least) return aggregate.kind() == Aggregate::Kind::sum ? Value(0) : Value();
  switch (aggregate.kind()) {
    case Aggregate::Kind::sum:
      return total;
    case Aggregate::Kind::minimum:
      return least;
    case Aggregate::Kind::maximum:
      return greatest;
    default:
      return weights == 0 ? Value() : Value(total / weights);
  }
}

bool SelectScope::hides(const NameReference& constant) const {
  return bound(constant).kind != RowBinding::Kind::outside || context_.session.hides(constant);
}

const ValueSet& SelectScope::values(const SelectStatement& statement) const {
  const auto known = subselects_.find(&statement);
  if (known != subselects_.end()) return known->second;
  const ResultPtr result = select(statement, context_);
  if (result->columns().empty()) throw LanguageError(statement.position, "Select", "se esperaba una columna");
  std::vector<Value> values;
  values.reserve(result->rowCount());
  for (RowId row = 1; row <= result->rowCount(); ++row) values.push_back(result->value(row, 0));
  return subselects_.emplace(&statement, ValueSet(std::move(values))).first->second;
}

ObjectPtr SelectScope::objectInSession(std::size_t table, const ObjectPtr& object) const {
  const CoordinateSystem& system = tables_[table].table->coordinateSystem();
  if (!object || system == context_.coordinateSystem) return object;
  ObjectPtr& image = transformed_[object.get()];
  if (!image) image = transformed(*object, Transformation(system, context_.coordinateSystem));
  return image;
}

ObjectPtr transformed(const MapObject& object, const Transformation& transformation) {
  auto image = std::make_shared<MapObject>(object);
  transformation.apply(image->points);
  image->bounds = {};
  for (const Point& p : image->points) image->bounds.add(p);
  return image;
}

}  // namespace motor

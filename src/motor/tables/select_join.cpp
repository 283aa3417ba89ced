#include "motor/tables/select_join.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "motor/language/comparison.h"
#include "motor/language/expressions/operation.h"
#include "motor/tables/select_filter.h"
#include "motor/tables/select_memory.h"
#include "motor/tables/select_object_link.h"

namespace motor {

namespace {

constexpr std::size_t kMaximumTuples = 5'000'000;
// That conditions are evaluated for.
constexpr std::size_t kMaximumTries = 12'000'000;

using Tuples = std::vector<std::vector<RowId>>;

// Values that `=` takes as equal have the same key.
std::string joinKey(const Value& value) {
  std::string key = value.number() != nullptr ? "#" : "\"";
  key += value.number() != nullptr ? value.toText() : foldedForEquality(value.toText());
  return key + '\0';
}

// `a = b` between what the table that is being added gives and what earlier tables give.
struct EqualityLink {
  const Expression* own;
  const Expression* others;
};

// What the conditions do when one more table comes to the tuples.
struct Links {
  std::vector<EqualityLink> equalities;
  std::vector<ObjectLink> objects;
  std::vector<const Expression*> others;  // evaluated
};

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
    Links links = takeLinks(table, rows);
    next_.assign(table + 1, {});
    if (!links.equalities.empty()) {
      addEqual(table, rows, links);
    } else if (!links.objects.empty()) {
      addRelated(table, links);
    } else {
      countTries(links, count() * rows.size());
      for (std::size_t i = 0; i < count(); ++i) addPassing(i, table, rows, links, 0);
    }
    tuples_ = std::move(next_);
  }

  // The conditions on this table and earlier ones, taken out of the others.
  Links takeLinks(std::size_t table, const std::vector<RowId>& rows) {
    const std::uint64_t known = (std::uint64_t{2} << table) - 1;
    Links links;
    std::erase_if(conditions_, [&](const Condition& condition) {
      if ((condition.tables & ~known) != 0) return false;
      if (const auto equality = equalityLink(*condition.expression, table)) {
        links.equalities.push_back(*equality);
      } else if (auto object = ObjectLink::of(scope_, *condition.expression, table, rows)) {
        links.objects.push_back(std::move(*object));
      } else {
        links.others.push_back(condition.expression);
      }
      return true;
    });
    return links;
  }

  std::optional<EqualityLink> equalityLink(const Expression& condition, std::size_t table) const {
    const auto* operation = dynamic_cast<const BinaryOperation*>(&condition);
    if (operation == nullptr || operation->op() != Operator::equal) return std::nullopt;
    const std::uint64_t own = std::uint64_t{1} << table;
    const std::uint64_t left = scope_.tablesOf(*operation->left());
    const std::uint64_t right = scope_.tablesOf(*operation->right());
    if (left == own && right != 0 && right < own)
      return EqualityLink{operation->left().get(), operation->right().get()};
    if (right == own && left != 0 && left < own) return EqualityLink{operation->right().get(), operation->left().get()};
    return std::nullopt;
  }

  void extend(std::string& key, const Value& value) {
    const std::string more = joinKey(value);
    keys_.add(more.size());
    key += more;
  }

  // The key of a row under all equalities; none when there is no value to compare.
  std::optional<std::string> keyOfRow(const Links& links) {
    std::string key;
    for (const EqualityLink& link : links.equalities) {
      const Value value = link.own->evaluate(scope_);
      if (value.isEmpty()) return std::nullopt;
      extend(key, value);
    }
    return key;
  }

  void addEqual(std::size_t table, const std::vector<RowId>& rows, Links& links) {
    std::unordered_map<std::string, std::vector<RowId>> rowsByKey;
    for (const RowId row : rows) {
      scope_.setRow(table, row);
      if (const auto key = keyOfRow(links)) rowsByKey[*key].push_back(row);
    }
    for (std::size_t i = 0; i < count(); ++i) {
      setTuple(i);
      std::string key;
      for (const EqualityLink& link : links.equalities) extend(key, link.others->evaluate(scope_));
      const auto matching = rowsByKey.find(key);
      if (matching == rowsByKey.end()) continue;
      countTries(links, matching->second.size());
      addPassing(i, table, matching->second, links, 0);
    }
  }

  // The first of the conditions between objects gives the rows, the others test them.
  void addRelated(std::size_t table, Links& links) {
    ObjectLink& first = links.objects.front();
    for (std::size_t i = 0; i < count(); ++i) {
      const std::vector<RowId>& related = first.rowsRelatedTo(tuples_[first.otherTable()][i]);
      countTries(links, related.size());
      addPassing(i, table, related, links, 1);
    }
  }

  // Throws EngineError when conditions are to be evaluated too often.
  void countTries(const Links& links, std::size_t count) {
    if (!links.others.empty()) tries_ += count;
    if (tries_ > kMaximumTries) throw EngineError("la unión de tablas tiene que probar demasiados pares de filas");
  }

  // Appends the tuple with each of the rows for which it passes the conditions between objects from `firstObject` on,
  // and all the others.
  void addPassing(std::size_t tuple, std::size_t table, const std::vector<RowId>& rows, Links& links,
                  std::size_t firstObject) {
    setTuple(tuple);
    for (const RowId row : rows) {
      const auto isRelated = [&](ObjectLink& link) { return link.holds(tuples_[link.otherTable()][tuple], row); };
      const auto from = links.objects.begin() + static_cast<std::ptrdiff_t>(firstObject);
      if (!std::all_of(from, links.objects.end(), isRelated)) continue;
      scope_.setRow(table, row);
      const auto isTrue = [this](const Expression* condition) { return holds(*condition, scope_); };
      if (std::all_of(links.others.begin(), links.others.end(), isTrue)) append(tuple, row);
    }
  }

  void append(std::size_t tuple, RowId row) {
    if (next_.front().size() >= kMaximumTuples)
      throw EngineError("el resultado de la unión de tablas es demasiado grande");
    for (std::size_t table = 0; table < tuples_.size(); ++table) next_[table].push_back(tuples_[table][tuple]);
    next_.back().push_back(row);
  }

  [[nodiscard]] std::size_t count() const { return tuples_.front().size(); }

  void setTuple(std::size_t tuple) {
    for (std::size_t table = 0; table < tuples_.size(); ++table) scope_.setRow(table, tuples_[table][tuple]);
  }

  SelectScope& scope_;
  std::vector<Condition> conditions_;
  Tuples tuples_;
  Tuples next_;            // with one more table
  std::size_t tries_ = 0;  // of rows with tuples
  SelectMemory keys_;      // of rows and of tuples
};

}  // namespace

std::vector<std::vector<RowId>> joinRows(SelectScope& scope, const Expression* where, Position position) {
  if (scope.tables().size() > 1 && where == nullptr) {
    throw LanguageError(position, "Select", "varias tablas sólo se unen con una condición Where");
  }
  return Join(scope, where).run();
}

}  // namespace motor

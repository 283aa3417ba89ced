#include "motor/tables/select_keys.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <string>
#include <string_view>
#include <unordered_map>

#include "motor/language/comparison.h"
#include "motor/tables/select_memory.h"
#include "text/collation.h"

namespace motor {

namespace {

constexpr double kNothing = -std::numeric_limits<double>::infinity();

// Texts, each with its place in the Spanish order.
class TextRanks {
 public:
  explicit TextRanks(bool grouping) : grouping_(grouping) {}

  // Gives the text's key; `ranks` tells its place. The text must stay where it is.
  std::uint32_t add(const std::string& s) {
    const auto known = byText_.find(s);
    if (known != byText_.end()) return known->second;
    const std::uint32_t next = static_cast<std::uint32_t>(keys_.size());
    const std::uint32_t id = grouping_ ? byFolded_.try_emplace(foldedForEquality(s), next).first->second : next;
    if (id == next) {
      keys_.push_back(text::collationKey(s));
      memory_.add(keys_.back().capacity());
    }
    byText_.emplace(s, id);
    return id;
  }

  [[nodiscard]] std::vector<std::uint32_t> ranks() const {
    std::vector<std::uint32_t> order(keys_.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [this](std::uint32_t a, std::uint32_t b) { return keys_[a] < keys_[b]; });
    std::vector<std::uint32_t> ranks(keys_.size());
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
      if (i > 0 && keys_[order[i]] != keys_[order[i - 1]]) ++rank;
      ranks[order[i]] = rank;
    }
    return ranks;
  }

 private:
  bool grouping_;
  std::vector<std::string> keys_;
  std::unordered_map<std::string_view, std::uint32_t> byText_;
  std::unordered_map<std::string, std::uint32_t> byFolded_;
  SelectMemory memory_;  // of the keys
};

double ordinalOf(const Value& value) {
  if (const double* number = value.number()) return *number;
  if (const bool* logical = value.logical()) return *logical ? 1 : 0;
  return kNothing;
}

Ordinals ordinalsOfTexts(const TextColumn& column, const std::vector<RowId>& rows, bool grouping) {
  const std::vector<std::uint32_t>& ranks = column.ranks();
  const std::vector<TextColumn::Code>* classes = grouping ? &column.equalityClasses() : nullptr;
  Ordinals ordinals;
  ordinals.reserve(rows.size());
  for (const RowId row : rows) {
    const TextColumn::Code code = column.code(row);
    if (code == TextColumn::kAbsent) {
      ordinals.push_back(kNothing);
    } else {
      ordinals.push_back(ranks[classes != nullptr ? (*classes)[code] : code]);
    }
  }
  return ordinals;
}

// Adds a key to groups made by the keys before it.
void splitGroups(const Ordinals& ordinals, std::vector<std::uint32_t>& groupOf) {
  struct Hash {
    std::size_t operator()(const std::pair<std::uint32_t, double>& key) const noexcept {
      return std::hash<double>{}(key.second) * 31 + key.first;
    }
  };
  std::unordered_map<std::pair<std::uint32_t, double>, std::uint32_t, Hash> groups;
  for (std::size_t i = 0; i < ordinals.size(); ++i) {
    const auto next = static_cast<std::uint32_t>(groups.size());
    groupOf[i] = groups.try_emplace({groupOf[i], ordinals[i]}, next).first->second;
  }
}

}  // namespace

Ordinals ordinalsOf(const std::vector<Value>& values, bool grouping) {
  TextRanks texts(grouping);
  std::vector<std::uint32_t> ids;
  for (const Value& value : values) ids.push_back(value.text() != nullptr ? texts.add(*value.text()) : 0);
  const std::vector<std::uint32_t> ranks = texts.ranks();
  Ordinals ordinals;
  ordinals.reserve(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool isText = values[i].text() != nullptr;
    ordinals.push_back(isText ? ranks[ids[i]] : ordinalOf(values[i]));
  }
  return ordinals;
}

Ordinals ordinalsOf(const SelectTable& table, std::size_t column, const std::vector<RowId>& rows, bool grouping) {
  if (table.base != nullptr) {
    if (const TextColumn* texts = table.base->textColumn(column)) return ordinalsOfTexts(*texts, rows, grouping);
    const std::vector<double>& numbers = *table.base->numbers(column);
    Ordinals ordinals;
    ordinals.reserve(rows.size());
    for (const RowId row : rows) ordinals.push_back(std::isnan(numbers[row - 1]) ? kNothing : numbers[row - 1]);
    return ordinals;
  }
  std::vector<Value> values;
  values.reserve(rows.size());
  for (const RowId row : rows) values.push_back(table.table->value(row, column));
  return ordinalsOf(values, grouping);
}

std::vector<std::uint32_t> sortedIndexes(const std::vector<SortKeyOrdinals>& keys, std::size_t count) {
  std::vector<std::uint32_t> indexes(count);
  std::iota(indexes.begin(), indexes.end(), 0U);
  std::stable_sort(indexes.begin(), indexes.end(), [&keys](std::uint32_t a, std::uint32_t b) {
    for (const SortKeyOrdinals& key : keys) {
      const double first = key.ordinals[a];
      const double second = key.ordinals[b];
      if (first != second) return (first < second) != key.descending;
    }
    return false;
  });
  return indexes;
}

RowGroups groupRows(const std::vector<Ordinals>& keys, std::size_t count) {
  RowGroups groups;
  groups.groupOf.assign(count, 0);
  for (const Ordinals& key : keys) splitGroups(key, groups.groupOf);
  for (std::size_t i = 0; i < count; ++i) {
    if (groups.groupOf[i] == groups.first.size()) groups.first.push_back(static_cast<std::uint32_t>(i));
  }
  return groups;
}

}  // namespace motor

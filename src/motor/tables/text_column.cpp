#include "motor/tables/text_column.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>

#include "motor/language/comparison.h"
#include "motor/language/like_pattern.h"
#include "text/collation.h"

namespace motor {
namespace {

std::string_view withoutTrailingBlanks(std::string_view s) {
  const std::size_t last = s.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view{} : s.substr(0, last + 1);
}

const std::string kNoText;
const std::vector<RowId> kNoRows;

}  // namespace

void TextColumn::append(std::string_view s) {
  s = withoutTrailingBlanks(s);
  rowsByClass_.clear();
  // Rows of one unit follow one another, and repeat the same texts in the same order.
  if (!codes_.empty() && codes_.back() != kAbsent) {
    const Code last = codes_.back();
    if (dictionary_[last] == s) return codes_.push_back(last);
    if (followers_[last] != kAbsent && dictionary_[followers_[last]] == s) return codes_.push_back(followers_[last]);
  }
  auto entry = codeByText_.find(s);
  if (entry == codeByText_.end()) {
    entry = codeByText_.emplace(std::string(s), static_cast<Code>(dictionary_.size())).first;
    dictionary_.emplace_back(s);
    followers_.push_back(kAbsent);
  }
  if (!codes_.empty() && codes_.back() != kAbsent) followers_[codes_.back()] = entry->second;
  codes_.push_back(entry->second);
}

const std::string& TextColumn::text(RowId row) const {
  const Code code = codes_[row - 1];
  return code == kAbsent ? kNoText : dictionary_[code];
}

const std::vector<TextColumn::Code>& TextColumn::equalityClasses() const {
  if (classes_.size() != dictionary_.size()) {
    classes_.clear();
    for (std::size_t code = 0; code < dictionary_.size(); ++code) {
      classes_.push_back(
          classByFolded_.try_emplace(foldedForEquality(dictionary_[code]), static_cast<Code>(code)).first->second);
    }
  }
  return classes_;
}

const std::vector<std::vector<RowId>>& TextColumn::rowsByClass() const {
  const std::vector<Code>& classes = equalityClasses();
  if (rowsByClass_.empty()) {
    rowsByClass_.resize(dictionary_.size());
    for (std::size_t i = 0; i < codes_.size(); ++i) {
      if (codes_[i] != kAbsent) rowsByClass_[classes[codes_[i]]].push_back(static_cast<RowId>(i + 1));
    }
  }
  return rowsByClass_;
}

const std::vector<RowId>& TextColumn::rowsEqual(std::string_view s) const {
  const std::vector<std::vector<RowId>>& rows = rowsByClass();
  const auto found = classByFolded_.find(foldedForEquality(s));
  return found == classByFolded_.end() ? kNoRows : rows[found->second];
}

std::optional<std::vector<RowId>> TextColumn::rowsMarked(const std::vector<bool>& isMarked, std::size_t most) const {
  const std::vector<Code>& classes = equalityClasses();
  const std::vector<std::vector<RowId>>& rows = rowsByClass();
  std::vector<Code> leaders;
  for (std::size_t code = 0; code < isMarked.size(); ++code) {
    if (isMarked[code]) leaders.push_back(classes[code]);
  }
  std::sort(leaders.begin(), leaders.end());
  leaders.erase(std::unique(leaders.begin(), leaders.end()), leaders.end());
  std::size_t count = 0;
  for (const Code leader : leaders) count += rows[leader].size();
  if (count > most) return std::nullopt;
  std::vector<RowId> marked;
  marked.reserve(count);
  for (const Code leader : leaders) {
    std::copy_if(rows[leader].begin(), rows[leader].end(), std::back_inserter(marked),
                 [&](RowId row) { return isMarked[code(row)]; });
  }
  std::sort(marked.begin(), marked.end());
  return marked;
}

const std::vector<std::u32string>& TextColumn::foldedForLike() const {
  for (std::size_t code = foldedForLike_.size(); code < dictionary_.size(); ++code) {
    foldedForLike_.push_back(motor::foldedForLike(dictionary_[code]));
  }
  return foldedForLike_;
}

const std::vector<std::uint32_t>& TextColumn::ranks() const {
  if (ranks_.size() != dictionary_.size()) {
    std::vector<std::string> keys;
    keys.reserve(dictionary_.size());
    for (const std::string& entry : dictionary_) keys.push_back(text::collationKey(entry));
    std::vector<Code> order(dictionary_.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&](Code a, Code b) { return keys[a] < keys[b]; });
    ranks_.resize(dictionary_.size());
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
      if (i > 0 && keys[order[i]] != keys[order[i - 1]]) ++rank;
      ranks_[order[i]] = rank;
    }
  }
  return ranks_;
}

}  // namespace motor

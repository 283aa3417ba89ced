#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "motor/tables/table.h"

namespace motor {

// A column of texts, each distinct text kept once: rows hold codes, codes index the dictionary. Codes count from 0 in
// the order of first appearance. The indexes are made when first asked for; a column is used by one thread.
class TextColumn {
 public:
  using Code = std::uint32_t;
  static constexpr Code kAbsent = 0xFFFFFFFF;  // the code of a deleted row

  void append(std::string_view text);
  void appendAbsent() { codes_.push_back(kAbsent); }
  void reserve(std::size_t rows) { codes_.reserve(rows); }

  [[nodiscard]] const std::string& text(RowId row) const;
  [[nodiscard]] Code code(RowId row) const { return codes_[row - 1]; }
  // By row - 1.
  [[nodiscard]] const std::vector<Code>& codes() const { return codes_; }
  // By code.
  [[nodiscard]] const std::vector<std::string>& dictionary() const { return dictionary_; }

  // By code: the lowest code whose text equals this one's (see foldedForEquality).
  [[nodiscard]] const std::vector<Code>& equalityClasses() const;
  // The rows whose text equals `text` (see foldedForEquality), ascending.
  [[nodiscard]] const std::vector<RowId>& rowsEqual(std::string_view text) const;
  // The rows of the codes that are marked, ascending; none where they are more than `most`, which a look at each row
  // finds as quickly. `isMarked` is by code.
  [[nodiscard]] std::optional<std::vector<RowId>> rowsMarked(const std::vector<bool>& isMarked, std::size_t most) const;
  // By code: the text as the operator Like compares it.
  [[nodiscard]] const std::vector<std::u32string>& foldedForLike() const;
  // By code: the text's place in the Spanish order, from 0; texts that compare equal share one.
  [[nodiscard]] const std::vector<std::uint32_t>& ranks() const;

 private:
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view s) const noexcept { return std::hash<std::string_view>{}(s); }
  };
  using CodeByText = std::unordered_map<std::string, Code, TextHash, std::equal_to<>>;

  [[nodiscard]] const std::vector<std::vector<RowId>>& rowsByClass() const;

  std::vector<Code> codes_;
  std::vector<std::string> dictionary_;
  CodeByText codeByText_;
  std::vector<Code> followers_;  // by code: the code that came after it last, or kAbsent

  mutable CodeByText classByFolded_;
  mutable std::vector<Code> classes_;                    // by code
  mutable std::vector<std::vector<RowId>> rowsByClass_;  // by code; filled for class leaders only
  mutable std::vector<std::uint32_t> ranks_;
  mutable std::vector<std::u32string> foldedForLike_;
};

}  // namespace motor

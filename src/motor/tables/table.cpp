#include "motor/tables/table.h"

#include <charconv>

#include "text/utf8.h"

namespace motor {
namespace {

// The number n (from 1) of "COLn".
std::optional<std::size_t> columnNumber(std::string_view name) {
  constexpr std::string_view kPrefix = "col";
  if (name.size() <= kPrefix.size() || !text::equalsIgnoringCase(name.substr(0, kPrefix.size()), kPrefix)) return {};
  std::size_t number = 0;
  const char* end = name.data() + name.size();
  const auto [stop, error] = std::from_chars(name.data() + kPrefix.size(), end, number);
  if (error != std::errc() || stop != end || number == 0) return {};
  return number;
}

}  // namespace

std::optional<std::size_t> Table::findColumn(std::string_view name) const {
  const std::vector<Column>& all = columns();
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (text::equalsIgnoringCase(all[i].name, name)) return i;
  }
  const std::optional<std::size_t> number = columnNumber(name);
  if (number && *number <= all.size()) return *number - 1;
  return {};
}

}  // namespace motor

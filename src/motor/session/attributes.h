#pragma once

#include <algorithm>
#include <string>

#include "motor/language/function_table.h"

namespace motor {

// One attribute that an information function (WindowInfo, LayerInfo, ...) tells, by its code. An attribute is one row
// of a table of these.
template <typename... Subject>
struct Attribute {
  int code;
  Value (*read)(const Subject&... subject);
};

// The attribute of a table's subject whose code is argument `index`. Throws LanguageError for a code that the table
// does not have.
template <typename Table, typename... Subject>
[[nodiscard]] Value readAttribute(const Table& table, const Arguments& arguments, std::size_t index,
                                  const Subject&... subject) {
  const int code = arguments.integer(index);
  const auto found = std::find_if(table.begin(), table.end(), [code](const auto& a) { return a.code == code; });
  if (found == table.end()) arguments.reject(index, "no hay ningún atributo " + std::to_string(code));
  return found->read(subject...);
}

}  // namespace motor

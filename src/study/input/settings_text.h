#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "study/input/fault_log.h"

namespace study {

// A value that settings do not take, as it is written.
struct OtherValue {
  std::string text;
};

using SettingValue = std::variant<std::string, long, std::vector<long>, OtherValue>;

// A line of a settings file: key = value, below the heading of its section.
struct Setting {
  std::string section;  // empty before the first heading
  std::string key;
  SettingValue value;
  std::size_t line = 0;

  // As messages call it: "key" or "section.key".
  [[nodiscard]] std::string name() const { return section.empty() ? key : section + "." + key; }
};

// Reads settings in a subset of TOML 1.0: comments, [sections], bare keys, texts in double quotes, texts over several
// lines in three double quotes, whole numbers and lists of whole numbers. Lines that are none of these become faults.
[[nodiscard]] std::vector<Setting> parseSettings(std::string_view text, const FileFaults& faults);

}  // namespace study

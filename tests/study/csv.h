#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace studytest {

// The rows of a text whose fields stand between commas and may be quoted, the header among them. Carriage returns
// before line ends are left out. Throws std::runtime_error where a row has not as many fields as the header.
[[nodiscard]] std::vector<std::vector<std::string>> csvRows(std::string_view text);

}  // namespace studytest

#pragma once

#include <functional>
#include <string_view>

namespace headless {

// Hands over the lines of a text that are neither blank nor a comment ("#"), without the blanks around them. A
// std::invalid_argument that `use` throws goes on with "line N: " before its words.
void forEachTextLine(std::string_view file, const std::function<void(std::string_view line)>& use);

}  // namespace headless

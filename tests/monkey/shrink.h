#pragma once

#include <functional>
#include <string>
#include <vector>

namespace monkey {

using Script = std::vector<std::string>;

// A script from which no line can be dropped any more: lines are left out, many at once first, as long as what is left
// still `fails`. The script given does.
[[nodiscard]] Script shrunk(Script script, const std::function<bool(const Script&)>& fails);

}  // namespace monkey

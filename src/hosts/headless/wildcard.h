#pragma once

#include <string_view>

namespace headless {

// Whether a text is the pattern's; "*" stands for any run of characters, everything else for itself.
[[nodiscard]] bool matchesWildcard(std::string_view pattern, std::string_view s);

}  // namespace headless

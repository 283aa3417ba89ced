#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace motor {

// Which columns a TAB or MIF file declares Logical; the format library gives them as one-letter texts. All false for a
// file that does not declare exactly `count` columns (a view, a seamless table).
[[nodiscard]] std::vector<bool> declaredLogical(const std::filesystem::path& file, std::size_t count);

}  // namespace motor

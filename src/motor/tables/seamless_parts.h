#pragma once

#include <filesystem>
#include <vector>

namespace motor {

// The tables that a seamless table is put together from, in order; none when the file is not a seamless table. Throws
// EngineError when its list of tables cannot be read.
[[nodiscard]] std::vector<std::filesystem::path> seamlessParts(const std::filesystem::path& file);

// All tables that reading a table reads besides its own: the parts of a seamless one, the tables behind a view, and
// theirs in turn. Throws as seamlessParts.
[[nodiscard]] std::vector<std::filesystem::path> allParts(const std::filesystem::path& file);

}  // namespace motor

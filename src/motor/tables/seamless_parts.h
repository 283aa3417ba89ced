#pragma once

#include <filesystem>
#include <vector>

namespace motor {

// The tables that a seamless table is put together from, in order; none when the file is not a seamless table. Throws
// EngineError when its list of tables cannot be read.
[[nodiscard]] std::vector<std::filesystem::path> seamlessParts(const std::filesystem::path& file);

}  // namespace motor

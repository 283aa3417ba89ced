#pragma once

#include <filesystem>
#include <functional>
#include <vector>

namespace motor {

// The tables that a seamless table is put together from, in order; none when the file is not a seamless table. Throws
// EngineError when its list of tables cannot be read or names one twice.
[[nodiscard]] std::vector<std::filesystem::path> seamlessParts(const std::filesystem::path& file);

// All tables that reading a table reads besides its own: the parts of a seamless one, the tables behind a view, and
// theirs in turn. Throws as seamlessParts, and at the first that is not one that `mayRead`.
[[nodiscard]] std::vector<std::filesystem::path> allParts(
    const std::filesystem::path& file, const std::function<bool(const std::filesystem::path&)>& mayRead);

}  // namespace motor

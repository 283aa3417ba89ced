#pragma once

#include <filesystem>

namespace motor {

// Throw the EngineError that says that a table's file is not there, that it is damaged, or that it lies where nothing
// may be read.
[[noreturn]] void failMissing(const std::filesystem::path& file);
[[noreturn]] void failDamaged(const std::filesystem::path& file);
[[noreturn]] void failForbidden(const std::filesystem::path& file);

}  // namespace motor

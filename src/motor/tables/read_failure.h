#pragma once

#include <filesystem>

namespace motor {

// Throw the EngineError that says that a table's file is not there, or that it is damaged.
[[noreturn]] void failMissing(const std::filesystem::path& file);
[[noreturn]] void failDamaged(const std::filesystem::path& file);

}  // namespace motor

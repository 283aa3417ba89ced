#pragma once

#include <filesystem>
#include <string>

namespace motor {

// Between paths of the machine and UTF-8 text.
[[nodiscard]] std::string textOf(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path pathOf(const std::string& text);

}  // namespace motor

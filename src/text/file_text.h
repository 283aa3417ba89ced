#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// What the file system holds, as text.
namespace text {

// The bytes of a file as they are; none where there is no such file or it cannot be read, as a folder.
[[nodiscard]] std::optional<std::string> wholeFile(const std::filesystem::path& file);

// Between paths of the machine and UTF-8.
[[nodiscard]] std::string fromPath(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path toPath(std::string_view utf8);

}  // namespace text

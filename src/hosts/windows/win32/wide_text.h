#pragma once

#include <optional>
#include <string>
#include <string_view>

// Between the program's UTF-8 and the system's texts.
namespace windows {

[[nodiscard]] std::wstring wide(std::string_view utf8);
[[nodiscard]] std::string utf8(std::wstring_view wide);

// The text in the machine's code page (1252 on Spanish machines); nothing when that cannot write all of it.
[[nodiscard]] std::optional<std::string> ansi(std::string_view utf8);
[[nodiscard]] std::string fromAnsi(std::string_view ansi);

}  // namespace windows

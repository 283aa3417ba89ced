#pragma once

#include <string>
#include <string_view>

namespace study {

// Whether the character exists in windows-1252.
[[nodiscard]] bool isOfWindows1252(char32_t character);

// The bytes of a UTF-8 text in windows-1252, the character set of workspaces and tables. Throws StudyError for a
// character that it does not have.
[[nodiscard]] std::string toWindows1252(std::string_view utf8);

}  // namespace study

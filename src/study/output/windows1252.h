#pragma once

#include <string>
#include <string_view>

namespace study {

// The bytes of a UTF-8 text in windows-1252, the character set of workspaces and tables. Throws StudyError for a
// character that it does not have.
[[nodiscard]] std::string toWindows1252(std::string_view utf8);

}  // namespace study

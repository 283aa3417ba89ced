#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "study/input/fault_log.h"

namespace study {

// Where the first byte stands that is no UTF-8 (overlong forms and surrogates are none); none: all of it is.
[[nodiscard]] std::optional<std::size_t> firstMalformed(std::string_view bytes);

// The text of the file `faults.file()` in a folder, in whatever case, without its byte order mark. None, with a fault:
// there is no such file, it cannot be read, or it is no UTF-8.
[[nodiscard]] std::optional<std::string> readText(const std::filesystem::path& folder, const FileFaults& faults);

// How many bytes the blank (also a firm one) or tab at the beginning or the end has; 0: there is none.
[[nodiscard]] std::size_t blankAtStart(std::string_view text);
[[nodiscard]] std::size_t blankAtEnd(std::string_view text);

// Without the blanks, firm blanks and tabs at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

}  // namespace study

#pragma once

#include <string>
#include <string_view>

#include "study/input/fault_log.h"

namespace study {

// What the tables' columns for names and for indicators hold, in characters of windows-1252.
inline constexpr std::size_t kLongestName = 60;
inline constexpr std::size_t kLongestIndicator = 120;

// The same text for names that differ only in case or in how accents are written.
[[nodiscard]] std::string folded(std::string_view name);

// Enters what keeps a text out of tables, statements and pages: nothing in it, quotes, control characters, characters
// that windows-1252 lacks, more than `longest` characters. `what` begins the message: "the zone".
void checkText(const FileFaults& faults, std::size_t line, std::string_view what, std::string_view text,
               std::size_t longest, FaultKind kind);

// Enters what keeps a text out of documents: control characters other than line ends and tabs, characters that
// windows-1252 lacks.
void checkProse(const FileFaults& faults, std::size_t line, std::string_view what, std::string_view text);

// As checkText with kLongestName, and what keeps a name from being the name of a file or folder too.
void checkName(const FileFaults& faults, std::string_view what, std::string_view name);

}  // namespace study

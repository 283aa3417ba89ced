#pragma once

#include <filesystem>
#include <vector>

namespace motor {

// The files that make up a TAB or MIF table and are there: its own first, then those beside it that the format library
// may open for it, whatever the case of their names.
[[nodiscard]] std::vector<std::filesystem::path> filesOfTable(const std::filesystem::path& file);

// Throws EngineError for a table that is not there, and for one whose files are not to be given to the format library:
// a pipe or a device among them, or more rows than there are bytes for.
void refuseUnreadable(const std::filesystem::path& file);

}  // namespace motor

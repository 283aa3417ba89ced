#pragma once

#include <filesystem>

#include "motor/tables/base_table.h"

namespace motor {

// Everything in a TAB or MIF file. Throws EngineError when it is missing, damaged or not a table of rows.
[[nodiscard]] TableContents readTable(const std::filesystem::path& file);

}  // namespace motor

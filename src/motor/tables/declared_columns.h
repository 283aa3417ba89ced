#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace motor {

// What the columns of a TAB or MIF file are declared as ("char", "logical", "largeint"), in lower case; the format
// library does not tell them all. Nothing when the file declares none or they are not to be found.
[[nodiscard]] std::vector<std::string> declaredTypes(const std::filesystem::path& file);

// The text of a file's definition in which columns of 64-bit numbers are declared as `type`.
[[nodiscard]] std::string withLargeIntegersAs(const std::string& type, const std::string& definition);

}  // namespace motor

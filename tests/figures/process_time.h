#pragma once

#include <filesystem>
#include <vector>

namespace figures {

// Runs a program with its arguments to its end; the seconds from its start to the first line that it prints. Throws
// std::runtime_error when it cannot be started, prints nothing or fails.
[[nodiscard]] double secondsToFirstLine(const std::vector<std::filesystem::path>& command);

// Runs such a program and reads the one number that it prints.
[[nodiscard]] double reportedNumber(const std::vector<std::filesystem::path>& command);

}  // namespace figures

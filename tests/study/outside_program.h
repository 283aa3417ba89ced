#pragma once

#include <optional>
#include <string>
#include <vector>

// Programs that check what we made and that a machine may lack.
namespace studytest {

// The first of these names that is a program in PATH.
[[nodiscard]] std::optional<std::string> findProgram(const std::vector<std::string>& names);

struct ProgramResult {
  int code = 0;  // of its exit; -1 where it ended otherwise
  std::string output;
};

// Runs a program with its arguments, without a shell's reading of them, and takes what it writes to its output.
[[nodiscard]] ProgramResult runProgram(const std::vector<std::string>& command);

// Told once more when all tests are done, as a skipped test says nothing of its reason in a summary.
void tellAtTheEnd(const std::string& notice);

}  // namespace studytest

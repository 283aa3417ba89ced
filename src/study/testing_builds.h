#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "study/command_line.h"

// For this folder's tests: the program, run in the test's own process.
namespace study {

struct ProgramRun {
  int code = 0;
  std::string out;
  std::string err;
};

inline ProgramRun runStudy(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = run(arguments, out, err);
  return {code, out.str(), err.str()};
}

// The input of a small region: three provinces, nine zones.
inline ProgramRun generateSmall(const std::filesystem::path& input, const std::string& years) {
  return runStudy(
      {"generate", input.string(), "--provinces", "3", "--zones", "9", "--vertices", "20", "--years", years});
}

}  // namespace study

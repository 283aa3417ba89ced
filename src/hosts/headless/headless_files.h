#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/files.h"

namespace headless {

// The machine's own disk, with files that a script says are there, or are not. Their paths are compared without regard
// to case.
class HeadlessFiles : public platform::Files {
 public:
  // Look-ups of this path find the file, under the name that the path ends in.
  void pretendFile(const std::string& path);
  // Look-ups and copies of this path find nothing.
  void pretendNoFile(const std::string& path);

  [[nodiscard]] std::string lookUp(const std::string& path) override;
  [[nodiscard]] std::vector<std::string> folders(const std::string& path) override;
  void copy(const std::string& from, const std::string& to) override;

 private:
  std::map<std::string, std::string> pretended_;  // by folded path; "" is no file
};

// The last name of a path written with "\" or "/".
[[nodiscard]] std::string lastName(const std::string& path);

}  // namespace headless

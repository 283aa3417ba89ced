#pragma once

#include <string>

namespace testengine {

// A file that gets a line for each thing that happens; nothing where it has no name.
class CallLog {
 public:
  explicit CallLog(std::wstring file) : file_(std::move(file)) {}
  // Opens and closes the file, so that the line is there whatever becomes of the process.
  void write(const std::string& line) const;

 private:
  std::wstring file_;
};

}  // namespace testengine

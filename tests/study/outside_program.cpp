#include "outside_program.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>

namespace studytest {

namespace {

class Notices : public testing::EmptyTestEventListener {
 public:
  void add(const std::string& notice) { notices_.insert(notice); }
  void OnTestProgramEnd(const testing::UnitTest&) override {
    for (const std::string& notice : notices_) std::cerr << "\n*** NOT CHECKED: " << notice << " ***\n";
  }

 private:
  std::set<std::string> notices_;
};

std::string quoted(const std::string& argument) {
  std::string text = "'";
  for (const char c : argument) text += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return text + "'";
}

struct Close {
  void operator()(FILE* pipe) const { pclose(pipe); }
};

}  // namespace

std::optional<std::string> findProgram(const std::vector<std::string>& names) {
  const char* path = std::getenv("PATH");
  for (const std::string& name : names) {
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');) {
      const std::string program = folder + "/" + name;
      if (!std::filesystem::is_directory(program) && access(program.c_str(), X_OK) == 0) return program;
    }
  }
  return std::nullopt;
}

ProgramResult runProgram(const std::vector<std::string>& command) {
  std::string line;
  for (const std::string& word : command) line += quoted(word) + " ";
  std::unique_ptr<FILE, Close> pipe(popen((line + "2>/dev/null").c_str(), "r"));
  if (!pipe) throw std::runtime_error("cannot be run: " + line);
  ProgramResult result;
  std::array<char, 65536> part{};
  while (const std::size_t size = std::fread(part.data(), 1, part.size(), pipe.get())) {
    result.output.append(part.data(), size);
  }
  const int status = pclose(pipe.release());
  result.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return result;
}

void tellAtTheEnd(const std::string& notice) {
  static Notices* const notices = [] {
    auto* listener = new Notices;
    testing::UnitTest::GetInstance()->listeners().Append(listener);  // which takes it over
    return listener;
  }();
  notices->add(notice);
}

}  // namespace studytest

#include "process_time.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

namespace figures {
namespace {

// Runs a command line to its end; what it printed.
std::string outputOf(const std::vector<std::filesystem::path>& command) {
  std::string line = "exec";
  for (const auto& word : command) line += " '" + word.string() + "'";
  struct Close {
    void operator()(FILE* stream) const { pclose(stream); }
  };
  std::unique_ptr<FILE, Close> stream(popen(line.c_str(), "r"));
  if (!stream) throw std::runtime_error("cannot start " + command.front().string());
  std::string output;
  std::array<char, 256> buffer{};
  while (std::fgets(buffer.data(), buffer.size(), stream.get()) != nullptr) output += buffer.data();
  if (pclose(stream.release()) != 0) throw std::runtime_error("failed: " + line);
  return output;
}

}  // namespace

double secondsOf(const std::vector<std::filesystem::path>& command) {
  const auto start = std::chrono::steady_clock::now();
  (void)outputOf(command);
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double reportedNumber(const std::vector<std::filesystem::path>& command) { return std::stod(outputOf(command)); }

}  // namespace figures

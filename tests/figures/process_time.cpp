#include "process_time.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

namespace figures {
namespace {

struct Close {
  void operator()(FILE* stream) const { pclose(stream); }
};
using Output = std::unique_ptr<FILE, Close>;

Output start(const std::vector<std::filesystem::path>& command) {
  std::string line = "exec";
  for (const auto& word : command) line += " '" + word.string() + "'";
  Output output(popen(line.c_str(), "r"));
  if (!output) throw std::runtime_error("cannot start " + command.front().string());
  return output;
}

// The first line that the program prints; it is empty where it prints none.
std::string firstLine(FILE* output) {
  std::array<char, 256> buffer{};
  return std::fgets(buffer.data(), buffer.size(), output) == nullptr ? "" : buffer.data();
}

void awaitEnd(Output output, const std::filesystem::path& program) {
  while (!firstLine(output.get()).empty()) continue;
  if (pclose(output.release()) != 0) throw std::runtime_error("failed: " + program.string());
}

}  // namespace

double secondsToFirstLine(const std::vector<std::filesystem::path>& command) {
  const auto begin = std::chrono::steady_clock::now();
  Output output = start(command);
  const bool answered = !firstLine(output.get()).empty();
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  awaitEnd(std::move(output), command.front());
  if (!answered) throw std::runtime_error("says nothing: " + command.front().string());
  return seconds;
}

double reportedNumber(const std::vector<std::filesystem::path>& command) {
  Output output = start(command);
  const std::string line = firstLine(output.get());
  awaitEnd(std::move(output), command.front());
  return std::stod(line);
}

}  // namespace figures

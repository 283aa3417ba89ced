#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "study/generator/generator.h"
#include "text/file_text.h"

// For this folder's tests: raw input that is removed at the end.
namespace study::generator {

class TestInput {
 public:
  explicit TestInput(const GeneratorSettings& settings) {
    static int count = 0;
    path_ = std::filesystem::path(testing::TempDir()) /
            ("generator_" + std::to_string(getpid()) + "_" + std::to_string(++count));
    std::filesystem::remove_all(path_);
    generateInput(settings, path_, {});
  }
  ~TestInput() { std::filesystem::remove_all(path_); }
  TestInput(const TestInput&) = delete;
  TestInput& operator=(const TestInput&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  [[nodiscard]] std::string bytes(const char* file) const { return text::wholeFile(path_ / file).value_or(""); }

 private:
  std::filesystem::path path_;
};

// The parts of a text between separators.
inline std::vector<std::string> parts(std::string_view text, char separator) {
  std::vector<std::string> result;
  while (true) {
    const std::size_t at = text.find(separator);
    result.emplace_back(text.substr(0, at));
    if (at == text.npos) return result;
    text.remove_prefix(at + 1);
  }
}

// The rows of a file without quotes, the header among them.
inline std::vector<std::vector<std::string>> rows(const std::string& csv) {
  std::vector<std::vector<std::string>> result;
  for (const std::string& line : parts(csv, '\n')) {
    if (!line.empty()) result.push_back(parts(line, ','));
  }
  return result;
}

inline constexpr const char* kInputFiles[] = {"deaths.csv", "population.csv", "causes.csv", "zones.geojson",
                                              "study.toml"};

}  // namespace study::generator

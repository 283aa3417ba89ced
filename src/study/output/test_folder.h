#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "text/file_text.h"

// For this folder's tests: an empty folder that is removed at the end.
namespace study {

class TestFolder {
 public:
  TestFolder() {
    static int count = 0;
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    path_ = std::filesystem::path(testing::TempDir()) /
            (std::string("study_") + test->test_suite_name() + "_" + test->name() + "_" + std::to_string(getpid()) +
             "_" + std::to_string(++count));
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~TestFolder() { std::filesystem::remove_all(path_); }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::string bytesOf(const std::filesystem::path& file) {
  const auto bytes = text::wholeFile(file);
  EXPECT_TRUE(bytes) << file;
  return bytes.value_or("");
}

inline void writeBytes(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

// All files below a folder, by relative path.
inline std::map<std::string, std::string> filesBelow(const std::filesystem::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) {
      files[std::filesystem::relative(entry.path(), folder).generic_string()] = bytesOf(entry.path());
    }
  }
  return files;
}

}  // namespace study

#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace study::generator {

// A file that is written from its beginning. Throws StudyError when it cannot be.
class OutputFile {
 public:
  explicit OutputFile(const std::filesystem::path& path);

  OutputFile& operator<<(std::string_view text) {
    stream_ << text;
    return *this;
  }
  OutputFile& operator<<(long number);

  // To be called once, at the end: tells whether everything has reached the file.
  void close();

 private:
  std::filesystem::path path_;
  std::ofstream stream_;
};

}  // namespace study::generator

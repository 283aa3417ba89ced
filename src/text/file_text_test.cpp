#include "text/file_text.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

namespace text {
namespace {

namespace fs = std::filesystem;

class FileText : public testing::Test {
 protected:
  FileText() { fs::create_directories(folder_); }
  ~FileText() override { fs::remove_all(folder_); }

  void expectSame(const std::string& bytes) const {
    const fs::path file = folder_ / "file";
    std::ofstream(file, std::ios::binary) << bytes;
    EXPECT_EQ(wholeFile(file), bytes) << bytes.size();
  }

  const fs::path folder_ = fs::path(testing::TempDir()) / ("file_text_" + std::to_string(getpid()));
};

TEST_F(FileText, BytesAreKept) {
  expectSame("");
  expectSame(std::string("a\0\r\n\xF1\x1A", 6));
  for (const std::size_t size : {65535U, 65536U, 65537U, 200'000U}) expectSame(std::string(size, 'x'));
}

TEST_F(FileText, WhatCannotBeReadIsNone) {
  EXPECT_EQ(wholeFile(folder_ / "none"), std::nullopt);
  EXPECT_EQ(wholeFile(folder_), std::nullopt);
}

TEST_F(FileText, PathsAreUtf8) {
  const std::string written = "Año/ Ñorga.wor";
  EXPECT_EQ(fromPath(fs::path(u8"Año/ Ñorga.wor")), written);
  EXPECT_EQ(toPath(written), fs::path(u8"Año/ Ñorga.wor"));
}

}  // namespace
}  // namespace text

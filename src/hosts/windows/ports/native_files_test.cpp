#include "hosts/windows/ports/native_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "hosts/windows/win32/windows_h.h"
#include "text/failure.h"
#include "text/file_text.h"

namespace windows {
namespace {

namespace fs = std::filesystem;

class Files : public ::testing::Test {
 protected:
  void SetUp() override { fs::create_directories(folder / L"Año" / L"Brisa"); }
  void TearDown() override { fs::remove_all(folder); }

  [[nodiscard]] std::string at(const std::wstring& name) const {
    fs::path path = folder / name;
    return text::fromPath(path.make_preferred());
  }
  void write(const std::wstring& name, const std::string& content, DWORD attributes = FILE_ATTRIBUTE_ARCHIVE) const {
    std::ofstream(folder / name, std::ios::binary) << content;
    SetFileAttributesW((folder / name).c_str(), attributes);
  }
  int failureOfCopy(const std::string& from, const std::string& to) {
    try {
      files.copy(from, to);
    } catch (const Failure& failure) {
      return failure.number();
    }
    return 0;
  }

  fs::path folder = fs::temp_directory_path() / L"veldoria-files";
  NativeFiles files;
};

TEST_F(Files, AreLookedUpByTheNamesThatTheyHave) {
  write(L"Medología.html", "x");
  EXPECT_EQ(files.lookUp(at(L"MEDOLOGÍA.HTML")), "Medología.html");
  EXPECT_EQ(files.lookUp(at(L"otra.html")), "");
  EXPECT_EQ(files.lookUp(at(L"Año")), "");
  EXPECT_EQ(files.lookUp(""), "");
}

TEST_F(Files, OfAllButHiddenOnesAreFound) {
  write(L"a", "x", FILE_ATTRIBUTE_ARCHIVE);
  write(L"r", "x", FILE_ATTRIBUTE_READONLY);
  write(L"h", "x", FILE_ATTRIBUTE_HIDDEN);
  write(L"s", "x", FILE_ATTRIBUTE_SYSTEM);
  EXPECT_EQ(files.lookUp(at(L"a")), "a");
  EXPECT_EQ(files.lookUp(at(L"r")), "r");
  EXPECT_EQ(files.lookUp(at(L"h")), "");
  EXPECT_EQ(files.lookUp(at(L"s")), "");
  SetFileAttributesW((folder / L"r").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Files, LieInFolders) {
  write(L"a.wor", "x");
  fs::create_directory(folder / L"1999");
  std::vector<std::string> names = files.folders(at(L""));
  std::ranges::sort(names);
  EXPECT_EQ(names, (std::vector<std::string>{"1999", "Año"}));
  EXPECT_TRUE(files.folders(at(L"nada")).empty());
}

TEST_F(Files, AreCopied) {
  write(L"tabla.html", "tabla");
  EXPECT_EQ(failureOfCopy(at(L"tabla.html"), at(L"copia ñ.html")), 0);
  EXPECT_EQ(text::wholeFile(folder / L"copia ñ.html"), "tabla");
  EXPECT_EQ(failureOfCopy(at(L"falta.html"), at(L"b.html")), failures::kFileNotFound);
  EXPECT_EQ(failureOfCopy(at(L"Año"), at(L"b.html")), failures::kFileNotFound);
  EXPECT_EQ(failureOfCopy(at(L"tabla.html"), at(L"sin\\carpeta.html")), failures::kPathAccess);
  EXPECT_EQ(failureOfCopy(at(L"tabla.html"), at(L"Año")), failures::kPathAccess);
}

}  // namespace
}  // namespace windows

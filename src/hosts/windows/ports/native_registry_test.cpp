#include "hosts/windows/ports/native_registry.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "atlas/shell/app_paths.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/windows_h.h"

namespace windows {
namespace {

using platform::kKeyQueryValue;

constexpr const char* kKey = "Software\\Veldoria registry test";
constexpr std::uint32_t kRoom = 10000;  // bytes, more than any value here takes

class RegistryPort : public ::testing::Test {
 protected:
  void SetUp() override {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyA(HKEY_LOCAL_MACHINE, kKey, &key), ERROR_SUCCESS);
    key_.reset(key);
  }
  void TearDown() override {
    key_.reset();
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, kKey);
  }

  // Stores exactly these bytes.
  void store(const char* name, DWORD type, const std::string& bytes) const {
    ASSERT_EQ(RegSetValueExW(key_.get(), wide(name).c_str(), 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                             static_cast<DWORD>(bytes.size())),
              ERROR_SUCCESS);
  }
  void storeWithoutEnd(const char* name, const std::wstring& text, DWORD type = REG_SZ) const {
    store(name, type, {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)});
  }
  void storeText(const char* name, const std::wstring& text, DWORD type = REG_SZ) const {
    storeWithoutEnd(name, text + L'\0', type);
  }

  platform::RegistryKey open(std::uint32_t access = kKeyQueryValue) {
    const auto opened = registry.openKey(kKey, access);
    EXPECT_EQ(opened.status, platform::kRegistrySuccess);
    return opened.key;
  }
  std::int32_t statusOf(const std::string& name) { return registry.queryValue(open(), name, kRoom).status; }

  // A text that is read whole: its size and terminator are right, and the size query says the same.
  void expectText(const std::string& name, const std::string& text, std::uint32_t type = platform::kRegistryText) {
    const platform::RegistryKey key = open();
    const auto asked = registry.queryValue(key, name, 0);
    const auto read = registry.queryValue(key, name, asked.size);
    EXPECT_EQ(asked.status, platform::kRegistrySuccess);
    EXPECT_EQ(asked.type, type);
    EXPECT_EQ(asked.size, text.size() + 1);
    EXPECT_TRUE(asked.data.empty());
    EXPECT_EQ(read.status, platform::kRegistrySuccess);
    EXPECT_EQ(read.type, type);
    EXPECT_EQ(read.size, text.size() + 1);
    EXPECT_EQ(std::string(read.data.begin(), read.data.end()), text + '\0');
  }

  NativeRegistry registry;

 private:
  RegistryKeyHandle key_;
};

TEST_F(RegistryPort, SaysThatAKeyIsMissing) {
  const auto opened = registry.openKey("Software\\Veldoria registry test\\nada", kKeyQueryValue);
  EXPECT_EQ(opened.status, platform::kRegistryNotFound);
  EXPECT_EQ(opened.key, 0);
  EXPECT_EQ(registry.openKey("Software\\Ω", kKeyQueryValue).status, platform::kRegistryNotFound);
  EXPECT_EQ(registry.openKeys(), 0U);
}

TEST_F(RegistryPort, SaysThatAValueIsMissing) {
  storeText("Path", L"C:\\MapInfo");
  EXPECT_EQ(statusOf("Ruta"), platform::kRegistryNotFound);
  EXPECT_EQ(statusOf("Ω"), platform::kRegistryNotFound);
  const auto asked = registry.queryValue(open(), "Ruta", 0);
  EXPECT_EQ(asked.status, platform::kRegistryNotFound);
  EXPECT_EQ(asked.type, 0U);
  EXPECT_EQ(asked.size, 0U);
}

TEST_F(RegistryPort, FindsKeysAndValuesInAnyCase) {
  storeText("Path", L"C:\\MapInfo");
  expectText("PATH", "C:\\MapInfo");
  EXPECT_EQ(registry.openKey("SOFTWARE\\veldoria REGISTRY test", kKeyQueryValue).status, platform::kRegistrySuccess);
}

TEST_F(RegistryPort, ReadsTexts) {
  storeText("Path", L"C:\\Archivos de programa\\Añó €\\ProViewer");
  expectText("Path", "C:\\Archivos de programa\\Añó €\\ProViewer");
  storeText("Vacío", L"");
  expectText("Vacío", "");
  const std::wstring longOne(5000, L'ñ');
  storeText("Largo", longOne);
  std::string inUtf8;
  for (std::size_t i = 0; i < longOne.size(); ++i) inUtf8 += "ñ";
  expectText("Largo", inUtf8);
  storeText("", L"sin nombre");
  expectText("", "sin nombre");
}

TEST_F(RegistryPort, LeavesTheNamesOfVariablesInATextAlone) {
  storeText("Path", L"%ProgramFiles%\\MapInfo", REG_EXPAND_SZ);
  expectText("Path", "%ProgramFiles%\\MapInfo", platform::kRegistryExpandedText);
}

TEST_F(RegistryPort, EndsATextThatWasStoredWithoutItsEnd) {
  storeWithoutEnd("Path", L"C:\\MapInfo");
  expectText("Path", "C:\\MapInfo");
  storeWithoutEnd("Nada", L"");
  expectText("Nada", "");
}

TEST_F(RegistryPort, ReadsValuesOfOtherTypesByteForByte) {
  store("Número", REG_DWORD, std::string("\x01\x00\x02\x03", 4));
  const auto number = registry.queryValue(open(), "Número", kRoom);
  EXPECT_EQ(number.type, platform::kRegistryNumber);
  EXPECT_EQ(number.size, 4U);
  EXPECT_EQ(number.data, (std::vector<std::uint8_t>{1, 0, 2, 3}));

  store("Bytes", REG_BINARY, std::string("a\0\xF1", 3));
  const auto bytes = registry.queryValue(open(), "Bytes", kRoom);
  EXPECT_EQ(bytes.type, platform::kRegistryBinary);
  EXPECT_EQ(bytes.data, (std::vector<std::uint8_t>{'a', 0, 0xF1}));
}

TEST_F(RegistryPort, FillsABufferThatIsTooSmallAndSaysSo) {
  storeText("Path", L"C:\\MapInfo");
  const auto read = registry.queryValue(open(), "Path", 5);
  EXPECT_EQ(read.status, ERROR_MORE_DATA);
  EXPECT_EQ(read.size, 11U);
  EXPECT_EQ(std::string(read.data.begin(), read.data.end()), "C:\\Ma");
}

// The right to query, 1, is enough to read; where only others were asked for, nothing can be read.
TEST_F(RegistryPort, OpensAKeyWithTheRightGivenAndNoOther) {
  storeText("Path", L"C:\\MapInfo");
  EXPECT_EQ(registry.queryValue(open(kKeyQueryValue), "Path", kRoom).status, platform::kRegistrySuccess);
  EXPECT_EQ(registry.queryValue(open(KEY_READ), "Path", kRoom).status, platform::kRegistrySuccess);
  for (const std::uint32_t access : std::array<std::uint32_t, 2>{KEY_SET_VALUE, KEY_ENUMERATE_SUB_KEYS}) {
    EXPECT_EQ(registry.queryValue(open(access), "Path", kRoom).status, ERROR_ACCESS_DENIED) << access;
  }
}

TEST_F(RegistryPort, IsReadByTheProgramAsItDoes) {
  storeText("Path", L"C:\\Añó\\");
  storeText("Vacío", L"");
  store("Número", REG_DWORD, std::string("\xFE\xFF\xFF\xFF", 4));
  store("Bytes", REG_BINARY, "abc");
  const platform::RegistryKey key = open();
  platform::Variant result;
  EXPECT_EQ(atlas::LeerValorRegistro(registry, key, "Path", result), platform::kRegistrySuccess);
  EXPECT_EQ(result, platform::Variant("C:\\Añó\\"));
  EXPECT_EQ(atlas::LeerValorRegistro(registry, key, "Vacío", result), platform::kRegistrySuccess);
  EXPECT_EQ(result, platform::Variant(""));
  EXPECT_EQ(atlas::LeerValorRegistro(registry, key, "Número", result), platform::kRegistrySuccess);
  EXPECT_EQ(result, platform::Variant(-2.0));
  for (const char* name : {"Bytes", "nada"}) {
    EXPECT_EQ(atlas::LeerValorRegistro(registry, key, name, result), -1) << name;
    EXPECT_EQ(result, platform::Variant(-2.0)) << "it is left as it was";
  }
}

TEST_F(RegistryPort, KnowsAKeyUntilItIsClosed) {
  storeText("Path", L"C:\\MapInfo");
  const platform::RegistryKey first = open();
  const platform::RegistryKey second = open();
  EXPECT_NE(first, second);
  registry.closeKey(first);
  EXPECT_EQ(registry.openKeys(), 1U);
  EXPECT_EQ(registry.queryValue(first, "Path", kRoom).status, platform::kRegistryInvalidHandle);
  EXPECT_EQ(registry.queryValue(second, "Path", kRoom).status, platform::kRegistrySuccess);
  EXPECT_EQ(registry.queryValue(0, "Path", kRoom).status, platform::kRegistryInvalidHandle);
}

}  // namespace
}  // namespace windows

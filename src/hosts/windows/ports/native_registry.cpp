#include "hosts/windows/ports/native_registry.h"

#include <algorithm>
#include <string_view>

#include "hosts/windows/win32/wide_text.h"

namespace windows {
namespace {

// Names that the machine's code page cannot write are those of nothing on it.
constexpr std::int32_t kUnwritable = platform::kRegistryNotFound;

bool isText(DWORD type) { return type == platform::kRegistryText || type == platform::kRegistryExpandedText; }

// A text value as UTF-8 with one terminator; values need not have been stored with theirs.
std::vector<std::uint8_t> textBytes(const std::vector<std::uint8_t>& stored) {
  const std::string raw(stored.begin(), std::ranges::find(stored, 0));
  const std::string text = fromAnsi(raw);
  std::vector<std::uint8_t> bytes(text.begin(), text.end());
  bytes.push_back(0);
  return bytes;
}

}  // namespace

NativeRegistry::Opened NativeRegistry::openKey(const std::string& path, std::uint32_t access) {
  const auto written = ansi(path);
  if (!written) return {kUnwritable, 0};
  HKEY key = nullptr;
  const LSTATUS status = RegOpenKeyExA(HKEY_LOCAL_MACHINE, written->c_str(), 0, access, &key);
  if (status != ERROR_SUCCESS) return {static_cast<std::int32_t>(status), 0};
  open_.emplace(++last_, RegistryKeyHandle(key));
  return {platform::kRegistrySuccess, last_};
}

// The size query, which says what a value is, then, for the size in UTF-8, the value itself.
NativeRegistry::Queried NativeRegistry::queryValue(platform::RegistryKey key, const std::string& name,
                                                   std::uint32_t bufferSize) {
  const auto found = open_.find(key);
  if (found == open_.end()) return {.status = platform::kRegistryInvalidHandle, .type = 0, .size = 0, .data = {}};
  const auto written = ansi(name);
  if (!written) return {.status = kUnwritable, .type = 0, .size = 0, .data = {}};

  const HKEY open = found->second.get();
  DWORD type = 0;
  DWORD size = 0;
  LSTATUS status = RegQueryValueExA(open, written->c_str(), nullptr, &type, nullptr, &size);
  std::vector<std::uint8_t> data(size);
  if (status == ERROR_SUCCESS && size > 0) {
    status = RegQueryValueExA(open, written->c_str(), nullptr, &type, data.data(), &size);
  }
  if (status != ERROR_SUCCESS) return {.status = static_cast<std::int32_t>(status), .type = 0, .size = 0, .data = {}};
  data.resize(size);
  if (isText(type)) data = textBytes(data);

  Queried queried{
      .status = platform::kRegistrySuccess, .type = type, .size = static_cast<std::uint32_t>(data.size()), .data = {}};
  if (bufferSize == 0) return queried;
  if (bufferSize < data.size()) queried.status = ERROR_MORE_DATA;
  data.resize(std::min<std::size_t>(data.size(), bufferSize));
  queried.data = std::move(data);
  return queried;
}

void NativeRegistry::closeKey(platform::RegistryKey key) { open_.erase(key); }

}  // namespace windows

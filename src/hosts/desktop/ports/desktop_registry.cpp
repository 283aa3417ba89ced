#include "hosts/desktop/ports/desktop_registry.h"

#include <algorithm>

#include "text/utf8.h"

namespace desktop {
namespace {

constexpr std::string_view kAppPaths = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

}  // namespace

DesktopRegistry::Opened DesktopRegistry::openKey(const std::string& path, std::uint32_t /*access*/) {
  const KnownProgram* program = programOfPath(path);
  const bool known = program != nullptr &&
                     text::equalsIgnoringCase(path, std::string(kAppPaths).append(program->executable)) &&
                     programs_.has(program->stand);
  if (!known) return {platform::kRegistryNotFound, 0};
  open_.push_back(true);
  return {platform::kRegistrySuccess, static_cast<platform::RegistryKey>(open_.size())};
}

DesktopRegistry::Queried DesktopRegistry::queryValue(platform::RegistryKey key, const std::string& name,
                                                     std::uint32_t bufferSize) {
  Queried result;
  const auto index = static_cast<std::size_t>(key) - 1;
  if (key < 1 || index >= open_.size() || !open_[index]) {
    result.status = platform::kRegistryInvalidHandle;
    return result;
  }
  if (!text::equalsIgnoringCase(name, "Path")) {
    result.status = platform::kRegistryNotFound;
    return result;
  }
  std::vector<std::uint8_t> data(kDesktopFolder.begin(), kDesktopFolder.end());
  data.push_back(0);
  result.type = platform::kRegistryText;
  result.size = static_cast<std::uint32_t>(data.size());
  data.resize(std::min<std::size_t>(data.size(), bufferSize));
  result.data = std::move(data);
  return result;
}

void DesktopRegistry::closeKey(platform::RegistryKey key) {
  const auto index = static_cast<std::size_t>(key) - 1;
  if (key >= 1 && index < open_.size()) open_[index] = false;
}

}  // namespace desktop

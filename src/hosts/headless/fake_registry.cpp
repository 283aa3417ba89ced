#include "hosts/headless/fake_registry.h"

#include <algorithm>

#include "text/utf8.h"

namespace headless {
namespace {

constexpr std::int32_t kMoreData = 234;

}  // namespace

void FakeRegistry::read(std::string_view file) {
  for (RegistryValue& value : registryValues(file)) values_.push_back(std::move(value));
}

void FakeRegistry::addText(const std::string& key, const std::string& name, const std::string& data) {
  values_.push_back(textValue(key, name, data));
}

FakeRegistry::Opened FakeRegistry::openKey(const std::string& path, std::uint32_t /*access*/) {
  const bool exists = std::ranges::any_of(
      values_, [&](const RegistryValue& value) { return text::equalsIgnoringCase(value.key, path); });
  if (!exists) return {platform::kRegistryNotFound, 0};
  opened_.push_back(path);
  return {platform::kRegistrySuccess, static_cast<platform::RegistryKey>(opened_.size())};
}

FakeRegistry::Queried FakeRegistry::queryValue(platform::RegistryKey key, const std::string& name,
                                               std::uint32_t bufferSize) {
  Queried result;
  const auto index = static_cast<std::size_t>(key) - 1;
  if (key < 1 || index >= opened_.size() || opened_[index].empty()) {
    result.status = platform::kRegistryInvalidHandle;
    return result;
  }
  const auto value = std::ranges::find_if(values_, [&](const RegistryValue& candidate) {
    return text::equalsIgnoringCase(candidate.key, opened_[index]) && text::equalsIgnoringCase(candidate.name, name);
  });
  result.status = value == values_.end() ? platform::kRegistryNotFound : value->status;
  if (result.status != platform::kRegistrySuccess) return result;
  result.type = value->type;
  result.size = static_cast<std::uint32_t>(value->data.size());
  if (bufferSize == 0) return result;
  const std::size_t fits = std::min<std::size_t>(bufferSize, value->data.size());
  result.data.assign(value->data.begin(), value->data.begin() + static_cast<std::ptrdiff_t>(fits));
  if (fits < value->data.size()) result.status = kMoreData;
  return result;
}

void FakeRegistry::closeKey(platform::RegistryKey key) {
  const auto index = static_cast<std::size_t>(key) - 1;
  if (key >= 1 && index < opened_.size()) opened_[index].clear();
}

std::size_t FakeRegistry::openKeys() const {
  return static_cast<std::size_t>(
      std::ranges::count_if(opened_, [](const std::string& path) { return !path.empty(); }));
}

}  // namespace headless

#include "hosts/headless/fake_registry.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "hosts/headless/text_lines.h"
#include "text/utf8.h"

namespace headless {
namespace {

constexpr std::int32_t kMoreData = 234;

std::vector<std::uint8_t> textBytes(std::string_view s) {
  std::vector<std::uint8_t> bytes(s.begin(), s.end());
  bytes.push_back(0);
  return bytes;
}

std::uint32_t wholeNumber(std::string_view s, int base) {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), value, base);
  if (error != std::errc() || end != s.data() + s.size())
    throw std::invalid_argument("not a number: " + std::string(s));
  return value;
}

std::uint32_t decimalOrHex(std::string_view s) {
  return s.starts_with("0x") ? wholeNumber(s.substr(2), 16) : wholeNumber(s, 10);
}

std::vector<std::uint8_t> numberBytes(std::uint32_t value) {
  std::vector<std::uint8_t> bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<std::uint8_t>(value >> shift));
  return bytes;
}

std::vector<std::uint8_t> hexBytes(std::string_view s) {
  if (s.size() % 2 != 0) throw std::invalid_argument("not pairs of hex digits: " + std::string(s));
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 0; i < s.size(); i += 2)
    bytes.push_back(static_cast<std::uint8_t>(wholeNumber(s.substr(i, 2), 16)));
  return bytes;
}

}  // namespace

FakeRegistry::Value FakeRegistry::parsed(std::string_view line) {
  std::vector<std::string> fields;
  for (std::size_t at = 0; fields.size() < 3;) {
    const std::size_t bar = line.find('|', at);
    if (bar == std::string_view::npos) throw std::invalid_argument("expected KEY|VALUE|TYPE|DATA");
    fields.emplace_back(line.substr(at, bar - at));
    at = bar + 1;
    if (fields.size() == 3) fields.emplace_back(line.substr(at));
  }
  const std::string& type = fields[2];
  const std::string& data = fields[3];
  Value value;
  value.key = fields[0];
  value.name = fields[1];
  if (type == "sz" || type == "expand_sz") {
    value.type = type == "sz" ? platform::kRegistryText : platform::kRegistryExpandedText;
    value.data = textBytes(data);
  } else if (type == "dword") {
    value.type = platform::kRegistryNumber;
    value.data = numberBytes(decimalOrHex(data));
  } else if (type == "binary") {
    value.type = platform::kRegistryBinary;
    value.data = hexBytes(data);
  } else if (type == "status") {
    value.status = static_cast<std::int32_t>(decimalOrHex(data));
  } else {
    throw std::invalid_argument("unknown type " + type);
  }
  return value;
}

void FakeRegistry::read(std::string_view file) {
  forEachTextLine(file, [this](std::string_view line) { values_.push_back(parsed(line)); });
}

void FakeRegistry::addText(const std::string& key, const std::string& name, const std::string& data) {
  values_.push_back({key, name, platform::kRegistrySuccess, platform::kRegistryText, textBytes(data)});
}

FakeRegistry::Opened FakeRegistry::openKey(const std::string& path, std::uint32_t /*access*/) {
  const bool exists =
      std::ranges::any_of(values_, [&](const Value& value) { return text::equalsIgnoringCase(value.key, path); });
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
  const auto value = std::ranges::find_if(values_, [&](const Value& candidate) {
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

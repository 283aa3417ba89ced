#include "hosts/headless/registry_file.h"

#include <charconv>
#include <stdexcept>

#include "hosts/headless/text_lines.h"

namespace headless {
namespace {

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

RegistryValue parsed(std::string_view line) {
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
  RegistryValue value;
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

}  // namespace

RegistryValue textValue(const std::string& key, const std::string& name, std::string_view text) {
  return {key, name, platform::kRegistrySuccess, platform::kRegistryText, textBytes(text)};
}

std::vector<RegistryValue> registryValues(std::string_view file) {
  std::vector<RegistryValue> values;
  forEachTextLine(file, [&values](std::string_view line) { values.push_back(parsed(line)); });
  return values;
}

}  // namespace headless

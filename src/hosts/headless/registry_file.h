#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace headless {

struct RegistryValue {
  std::string key;
  std::string name;
  std::int32_t status = platform::kRegistrySuccess;  // what a query of the value answers with
  std::uint32_t type = 0;
  std::vector<std::uint8_t> data;  // texts in UTF-8 with their terminator
};

[[nodiscard]] RegistryValue textValue(const std::string& key, const std::string& name, std::string_view text);

// The values of a registry file: lines "KEY|VALUE|TYPE|DATA" with the types sz, expand_sz, dword (decimal, or hex after
// 0x) and binary (pairs of hex digits), or "KEY|VALUE|status|N" for a value whose query answers with the status N; "#"
// begins a comment line. Fails with std::invalid_argument that names the line.
[[nodiscard]] std::vector<RegistryValue> registryValues(std::string_view file);

}  // namespace headless

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace headless {

// A registry in memory.
class FakeRegistry : public platform::Registry {
 public:
  // Adds the values of a registry file: lines "KEY|VALUE|TYPE|DATA" with the types sz, expand_sz, dword (decimal, or
  // hex after 0x) and binary (pairs of hex digits), or "KEY|VALUE|status|N" for a value whose query answers with the
  // status N;
  // "#" begins a comment line. Fails with std::invalid_argument that names the line.
  void read(std::string_view file);

  void addText(const std::string& key, const std::string& name, const std::string& data);

  [[nodiscard]] Opened openKey(const std::string& path, std::uint32_t access) override;
  // A buffer too small gets what fits, with the status 234.
  [[nodiscard]] Queried queryValue(platform::RegistryKey key, const std::string& name,
                                   std::uint32_t bufferSize) override;
  void closeKey(platform::RegistryKey key) override;

  [[nodiscard]] std::size_t openKeys() const;

 private:
  struct Value {
    std::string key;
    std::string name;
    std::int32_t status = platform::kRegistrySuccess;
    std::uint32_t type = 0;
    std::vector<std::uint8_t> data;
  };

  [[nodiscard]] static Value parsed(std::string_view line);

  std::vector<Value> values_;
  std::vector<std::string> opened_;  // by key handle, counted from 1; "" when closed
};

}  // namespace headless

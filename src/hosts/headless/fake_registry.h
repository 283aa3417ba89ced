#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "hosts/headless/registry_file.h"
#include "platform/registry.h"

namespace headless {

// A registry in memory.
class FakeRegistry : public platform::Registry {
 public:
  // Adds the values of a registry file. Fails with std::invalid_argument that names the line.
  void read(std::string_view file);

  void addText(const std::string& key, const std::string& name, const std::string& data);

  [[nodiscard]] Opened openKey(const std::string& path, std::uint32_t access) override;
  // A buffer too small gets what fits, with the status 234.
  [[nodiscard]] Queried queryValue(platform::RegistryKey key, const std::string& name,
                                   std::uint32_t bufferSize) override;
  void closeKey(platform::RegistryKey key) override;

  [[nodiscard]] std::size_t openKeys() const;

 private:
  std::vector<RegistryValue> values_;
  std::vector<std::string> opened_;  // by key handle, counted from 1; "" when closed
};

}  // namespace headless

#pragma once

#include <map>

#include "hosts/windows/win32/handles.h"
#include "platform/registry.h"

namespace windows {

// RegOpenKeyExA below HKEY_LOCAL_MACHINE and RegQueryValueExA. Texts come from the machine's code page; their size is
// that of the UTF-8 text with its terminator.
class NativeRegistry : public platform::Registry {
 public:
  [[nodiscard]] Opened openKey(const std::string& path, std::uint32_t access) override;
  [[nodiscard]] Queried queryValue(platform::RegistryKey key, const std::string& name,
                                   std::uint32_t bufferSize) override;
  void closeKey(platform::RegistryKey key) override;

  [[nodiscard]] std::size_t openKeys() const { return open_.size(); }

 private:
  std::map<platform::RegistryKey, RegistryKeyHandle> open_;
  platform::RegistryKey last_ = 0;
};

}  // namespace windows

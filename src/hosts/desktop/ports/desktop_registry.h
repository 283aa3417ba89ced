#pragma once

#include <string>
#include <vector>

#include "hosts/desktop/ports/known_programs.h"
#include "platform/registry.h"

namespace desktop {

// The registry as this machine would fill it in: the install folders of the known programs that the desktop has.
class DesktopRegistry : public platform::Registry {
 public:
  // `programs` outlives this.
  explicit DesktopRegistry(const DesktopPrograms& programs) : programs_(programs) {}

  [[nodiscard]] Opened openKey(const std::string& path, std::uint32_t access) override;
  [[nodiscard]] Queried queryValue(platform::RegistryKey key, const std::string& name,
                                   std::uint32_t bufferSize) override;
  void closeKey(platform::RegistryKey key) override;

 private:
  const DesktopPrograms& programs_;
  std::vector<bool> open_;  // by key, counted from 1
};

}  // namespace desktop

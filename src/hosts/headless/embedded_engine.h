#pragma once

#include <filesystem>

#include "hosts/headless/engine_host.h"
#include "motor/session/headless_windows.h"
#include "motor/session/session.h"

namespace headless {

// The embedded map engine without a screen.
class EmbeddedEngine : public EngineHost {
 public:
  // Tables are read from below the folder given.
  explicit EmbeddedEngine(const std::filesystem::path& applicationFolder);

  [[nodiscard]] platform::MapEngines& engines() override { return service_; }
  bool clickMap(const std::string& x, const std::string& y) override;

 private:
  motor::HeadlessWindows windows_;
  motor::SessionService service_;
};

}  // namespace headless

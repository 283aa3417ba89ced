#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "hosts/headless/engine_host.h"
#include "motor/session/headless_windows.h"
#include "motor/session/session.h"

namespace headless {

// The embedded map engine without a screen.
class EmbeddedEngine : public EngineHost {
 public:
  // Tables are read from below the folder given.
  explicit EmbeddedEngine(const std::filesystem::path& applicationFolder);
  // With map windows of the caller's own, which outlive it.
  EmbeddedEngine(const std::filesystem::path& applicationFolder, motor::WindowPort& windows);

  [[nodiscard]] platform::MapEngines& engines() override { return service_; }
  bool clickMap(const std::string& x, const std::string& y) override;
  // The session created last that is still alive, or null.
  [[nodiscard]] std::shared_ptr<motor::Session> current() const { return service_.current(); }

 private:
  motor::HeadlessWindows windows_;
  motor::SessionService service_;
};

}  // namespace headless

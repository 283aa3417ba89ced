#pragma once

#include <memory>
#include <string>
#include <vector>

#include "hosts/headless/embedded/embedded_engine.h"
#include "motor/session/headless_windows.h"

namespace monkey {

// Map windows without a screen that are counted.
class CountedWindows : public motor::HeadlessWindows {
 public:
  [[nodiscard]] std::int64_t openMap(motor::MapWindow& window) override {
    ++open_;
    return HeadlessWindows::openMap(window);
  }
  void closeMap(motor::MapWindow& window) override {
    --open_;
    HeadlessWindows::closeMap(window);
  }
  [[nodiscard]] int open() const { return open_; }

 private:
  int open_ = 0;
};

// The embedded engine without a screen; it knows how many of its sessions and of their map windows there are.
class CountedEngines : public headless::EngineHost, public platform::MapEngines {
 public:
  explicit CountedEngines(const std::string& applicationFolder) : inner_(applicationFolder, windows_) {}

  [[nodiscard]] platform::MapEngines& engines() override { return *this; }
  bool clickMap(const std::string& x, const std::string& y) override { return inner_.clickMap(x, y); }
  [[nodiscard]] std::shared_ptr<platform::MapEngine> create(const std::string& programId) override;

  // Sessions that somebody still holds.
  [[nodiscard]] int sessions();
  // Windows opened and not closed, and how many of them the current session knows.
  [[nodiscard]] int windows() const { return windows_.open(); }
  [[nodiscard]] int windowsOfSession() const;

 private:
  CountedWindows windows_;
  headless::EmbeddedEngine inner_;
  std::vector<std::weak_ptr<platform::MapEngine>> sessions_;
};

}  // namespace monkey

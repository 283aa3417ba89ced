#pragma once

#include <optional>
#include <string>

#include "hosts/headless/engine_host.h"
#include "hosts/headless/fake_programs.h"
#include "hosts/headless/fake_registry.h"
#include "hosts/headless/fake_windows.h"
#include "hosts/headless/headless_files.h"
#include "hosts/headless/headless_listener.h"
#include "hosts/headless/model_hands.h"
#include "hosts/headless/scripted_dialogs.h"
#include "hosts/headless/scripted_messages.h"
#include "hosts/headless/world.h"

namespace headless {

// A world in memory, but for the study's files.
class HeadlessWorld : public World {
 public:
  // The folder is absolute, without a separator at its end; `engines` outlives the world. Without a registry file (its
  // text) the engine and a PDF reader are installed. Fails with std::invalid_argument when the registry file is wrong.
  HeadlessWorld(std::string applicationFolder, const std::optional<std::string>& registryFile, EngineHost& engines);

  // The desktop that the program believes in.
  [[nodiscard]] FakeWindows& windows() { return windows_; }

  [[nodiscard]] platform::Ports ports() override;
  [[nodiscard]] forms::Listener& screen() override { return listener_; }
  [[nodiscard]] Hands& hands() override { return hands_; }
  void enter(const std::function<void()>& action) override { action(); }
  void closeAll() override {}
  [[nodiscard]] bool callBack(RecordingEngine& engine, const std::string& method, const std::string& message) override {
    return engine.callBack(method, message);
  }
  [[nodiscard]] bool clickMap(const std::string& x, const std::string& y) override { return engines_.clickMap(x, y); }
  void prepareAnswer(platform::Button button) override { messages_.prepare(button); }
  void prepareName(const std::string& name) override { dialogs_.prepareName(name); }
  void prepareCancel() override { dialogs_.prepareCancel(); }
  void nameLocation(const std::string& name) override { listener_.setLocationName(name); }
  void putFile(const std::string& path) override { files_.pretendFile(path); }
  void removeFile(const std::string& path) override { files_.pretendNoFile(path); }
  void openWindow(const std::string& title) override { windows_.addWindow(title); }

 private:
  std::string applicationFolder_;
  EngineHost& engines_;
  FakeWindows windows_;
  FakeRegistry registry_;
  HeadlessFiles files_;
  FakePrograms programs_;
  ScriptedMessages messages_;
  ScriptedDialogs dialogs_;
  HeadlessListener listener_{windows_};
  ModelHands hands_;
};

}  // namespace headless

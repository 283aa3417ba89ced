#pragma once

#include <optional>
#include <string>

#include "dialog_answers.h"
#include "hosts/desktop/ports/qt_dialogs.h"
#include "hosts/desktop/ports/qt_messages.h"
#include "hosts/desktop/ports/qt_window_system.h"
#include "hosts/headless/headless_world.h"
#include "hosts/screen/answered_engines.h"
#include "motor/window/qt_windows.h"
#include "replay_host.h"
#include "widget_hands.h"

namespace desktop_replay {

// The world of a replay on the desktop's own screen: its windows, widgets, message boxes and dialogs, and maps in real
// map windows. What is installed on the machine and which files it has is what the scenario says, as without a screen.
class DesktopWorld : public headless::World {
 public:
  // As HeadlessWorld. With an engine file (its text) the map engine is scripted.
  DesktopWorld(const std::string& applicationFolder, const std::optional<std::string>& registryFile,
               const std::optional<std::string>& engineFile);
  ~DesktopWorld() override;

  [[nodiscard]] platform::Ports ports() override;
  [[nodiscard]] forms::Listener& screen() override { return host_; }
  [[nodiscard]] headless::Hands& hands() override { return hands_; }
  void enter(const std::function<void()>& action) override;
  void closeAll() override { host_.closeAll(); }
  [[nodiscard]] bool callBack(headless::RecordingEngine& engine, const std::string& method,
                              const std::string& message) override;
  [[nodiscard]] bool clickMap(const std::string& x, const std::string& y) override;
  void prepareAnswer(platform::Button button) override { answers_.prepareAnswer(button); }
  void prepareName(const std::string& name) override { answers_.prepareName(name); }
  void prepareCancel() override { answers_.prepareCancel(); }
  void nameLocation(const std::string& name) override { host_.nameLocation(name); }
  void putFile(const std::string& path) override { machine_.putFile(path); }
  void removeFile(const std::string& path) override { machine_.removeFile(path); }
  void openWindow(const std::string& title) override;

 private:
  void settle();
  void holdClocks();

  motor::WidgetHandles handles_;
  motor::QtWindows maps_{handles_};
  std::unique_ptr<headless::EngineHost> engines_;
  headless::HeadlessWorld machine_;
  screen::ProgramCalls calls_;
  screen::AnsweredEngines answered_{engines_->engines(), calls_};
  ReplayHost host_;
  desktop::QtWindowSystem windows_{host_, handles_};
  desktop::QtMessages messages_{host_};
  platform::Ports machinePorts_;
  desktop::QtDialogs dialogs_;
  DialogAnswers answers_;
  WidgetHands hands_;
  std::optional<std::string> letOut_;
};

}  // namespace desktop_replay

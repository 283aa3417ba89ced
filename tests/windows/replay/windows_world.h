#pragma once

#include <optional>
#include <string>

#include "hosts/headless/world.h"
#include "hosts/screen/program_calls.h"
#include "hosts/windows/com/busy_engine.h"
#include "hosts/windows/com/ole_thread.h"
#include "hosts/windows/windows_host.h"
#include "hosts/windows/windows_ports.h"
#include "replay/dialog_user.h"
#include "replay/engine_orders.h"
#include "replay/native_hands.h"
#include "replay/other_programs.h"
#include "replay/stage.h"

namespace wintest {

// The world of a replay on real Windows, or what stands for it: native windows, the machine's registry and files, the
// map engine that is registered.
class WindowsWorld : public headless::World {
 public:
  // The folder is written with "\", without one at its end. `viewer` is the program that stands for outside programs.
  // Without a registry file (its text) the engine and a PDF reader are installed. Fails with std::invalid_argument when
  // the registry file is wrong.
  WindowsWorld(const std::string& applicationFolder, const std::optional<std::string>& registryFile,
               const std::filesystem::path& viewer);

  [[nodiscard]] platform::Ports ports() override { return ports_.ports(); }
  [[nodiscard]] forms::Listener& screen() override { return host_; }
  [[nodiscard]] headless::Hands& hands() override { return hands_; }
  void enter(const std::function<void()>& action) override;
  void closeAll() override { host_.closeAll(); }
  [[nodiscard]] bool callBack(headless::RecordingEngine& engine, const std::string& method,
                              const std::string& message) override;
  [[nodiscard]] bool clickMap(const std::string& x, const std::string& y) override;
  void prepareAnswer(platform::Button button) override { dialogs_.prepareAnswer(button); }
  void prepareName(const std::string& name) override { dialogs_.prepareName(name); }
  void prepareCancel() override { dialogs_.prepareCancel(); }
  void nameLocation(const std::string& name) override;
  void putFile(const std::string& path) override { stage_.putFile(path); }
  void removeFile(const std::string& path) override { Stage::removeFile(path); }
  void openWindow(const std::string& title) override { others_.openWindow(title); }

  // The windows of the program.
  [[nodiscard]] windows::WindowsHost& host() { return host_; }
  // Handles the messages that wait, and those that follow from them. Throws what a handler of the program let out, and
  // the program's end.
  void settle();
  // Gives the engine an order (engine/orders.h) and handles what follows. False when it could not be carried out.
  [[nodiscard]] bool order(const wire::Fields& order);

 private:
  // Handles one message; false when there is none.
  bool handleMessage();
  void waitForMessage();
  void throwWhatWasLetOut();

  windows::OleThread ole_;
  screen::ProgramCalls calls_;
  windows::WindowsHost host_{calls_};
  windows::BusyEngine busyEngine_{host_};
  windows::WindowsPorts ports_;
  Stage stage_;
  OtherPrograms others_;
  DialogUser dialogs_;
  EngineOrders orders_;
  NativeHands hands_;
  std::optional<std::string> letOut_;
};

}  // namespace wintest

#pragma once

#include <memory>
#include <string>

#include "atlas/atlas.h"
#include "hosts/headless/embedded/embedded_engine.h"
#include "hosts/headless/fake_programs.h"
#include "hosts/headless/fake_registry.h"
#include "hosts/headless/fake_windows.h"
#include "hosts/headless/headless_files.h"
#include "hosts/headless/headless_listener.h"
#include "hosts/headless/scripted_dialogs.h"
#include "hosts/headless/scripted_messages.h"

namespace figures {

// The whole program without widgets, on the tab "Datos" of a study.
class HeadlessProgram {
 public:
  explicit HeadlessProgram(const std::string& applicationFolder);
  ~HeadlessProgram();

  [[nodiscard]] atlas::Atlas& atlas() { return *atlas_; }
  // The user picks a province from the list, by its place in it.
  void consultProvince(int index);
  // How many nodes the indicator tree holds.
  [[nodiscard]] std::size_t nodeCount();

 private:
  headless::EmbeddedEngine engine_;
  headless::FakeWindows windows_;
  headless::FakeRegistry registry_;
  headless::HeadlessFiles files_;
  headless::FakePrograms programs_;
  headless::ScriptedMessages messages_;
  headless::ScriptedDialogs dialogs_;
  headless::HeadlessListener listener_{windows_};
  std::unique_ptr<atlas::Atlas> atlas_;
};

}  // namespace figures

#pragma once

#include <QTimer>
#include <memory>
#include <string>

#include "atlas/atlas.h"
#include "hosts/desktop/ports/desktop_files.h"
#include "hosts/desktop/ports/desktop_registry.h"
#include "hosts/desktop/ports/qt_dialogs.h"
#include "hosts/desktop/ports/qt_messages.h"
#include "hosts/desktop/ports/qt_programs.h"
#include "hosts/desktop/ports/qt_window_system.h"
#include "hosts/desktop/ports/user_programs.h"
#include "hosts/desktop/qt_host.h"
#include "hosts/headless/headless_files.h"
#include "hosts/screen/answered_engines.h"
#include "motor/session/session.h"
#include "motor/window/qt_windows.h"

class QApplication;

namespace desktop {

// The application's name, look and words, for every program that shows the atlas. Dialogs are the toolkit's own, which
// speak Spanish whatever the desktop's language and write nothing down; the number signs of the maps stay the
// desktop's.
void prepareApplication(QApplication& application);

// The program on the user's desktop: the atlas, its windows and the embedded map engine.
class DesktopProgram {
 public:
  // `programs` is what stands for the outside programs; it outlives this.
  DesktopProgram(const std::string& applicationFolder, DesktopPrograms& programs);
  ~DesktopProgram();
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;

  // Shows the splash and returns; the program then runs on the toolkit's events, which end with it.
  void start();

  [[nodiscard]] QtHost& host() { return host_; }
  [[nodiscard]] atlas::Atlas& atlas() { return *atlas_; }
  [[nodiscard]] screen::ProgramCalls& calls() { return calls_; }
  // Whether the program has ended: at once, or with its last window.
  [[nodiscard]] bool isOver() const { return over_; }

 private:
  screen::ProgramCalls calls_;
  motor::WidgetHandles handles_;
  motor::QtWindows mapWindows_{handles_};
  motor::SessionService sessions_;
  screen::AnsweredEngines engines_{sessions_, calls_};
  QtHost host_;
  QtWindowSystem windows_{host_, handles_};
  QtMessages messages_{host_};
  headless::HeadlessFiles machineFiles_;
  DesktopFiles files_;
  DesktopRegistry registry_;
  QtPrograms programs_;
  QtDialogs dialogs_;
  std::unique_ptr<atlas::Atlas> atlas_;
  QTimer rehearsal_;  // while the splash is shown
  bool over_ = false;
};

}  // namespace desktop

#include "desktop_world.h"

#include <QApplication>
#include <QCursor>
#include <QTimer>
#include <stdexcept>

#include "hosts/desktop/user_hands.h"
#include "hosts/headless/embedded/embedded_engine.h"
#include "hosts/headless/script_line.h"
#include "hosts/headless/scripted_engine.h"
#include "platform/paths.h"
#include "platform/programs.h"
#include "text/failure.h"

namespace desktop_replay {
namespace {

// The working window as large as its form is stored, in pixels.
constexpr QSize kWindow{1024, 768};

// Where none of the program's windows is: the pointer points at what a script says.
constexpr QPoint kNowhere{5000, 5000};

constexpr int kNotTold = 0;  // nobody tells the number of a failure that was let out

std::unique_ptr<headless::EngineHost> makeEngines(const std::string& folder, const std::optional<std::string>& file,
                                                  motor::WindowPort& maps) {
  if (file) return std::make_unique<headless::ScriptedEngines>(*file);
  return std::make_unique<headless::EmbeddedEngine>(platform::machinePath(folder), maps);
}

}  // namespace

DesktopWorld::DesktopWorld(const std::string& applicationFolder, const std::optional<std::string>& registryFile,
                           const std::optional<std::string>& engineFile)
    : engines_(makeEngines(applicationFolder, engineFile, maps_)),
      machine_(applicationFolder, registryFile, *engines_),
      host_(calls_, handles_, applicationFolder),
      machinePorts_(machine_.ports()),
      dialogs_(host_, machinePorts_.files),
      hands_(host_, [this] { settle(); }) {
  host_.setFirstSize(kWindow);
  QCursor::setPos(kNowhere);
  calls_.failed = [this](const std::string& description) { letOut_ = description; };
}

DesktopWorld::~DesktopWorld() { host_.closeAll(); }

platform::Ports DesktopWorld::ports() {
  return {answered_, windows_, machinePorts_.registry,         machinePorts_.files, machinePorts_.programs,
          messages_, dialogs_, machinePorts_.applicationFolder};
}

void DesktopWorld::enter(const std::function<void()>& action) {
  calls_.run(action);
  holdClocks();
  settle();
}

// A script's time stands still: the program's timers run when it says so.
void DesktopWorld::holdClocks() {
  constexpr int kNever = 1'000'000'000;  // milliseconds
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const auto* form = dynamic_cast<desktop::FormWindow*>(window);
    if (form == nullptr) continue;
    for (forms::Control* control : form->form().controls()) {
      const auto* view = form->viewOf(*control);
      if (view == nullptr || view->widget() != nullptr) continue;
      for (QTimer* clock : view->findChildren<QTimer*>()) clock->setInterval(kNever);
    }
  }
}

bool DesktopWorld::callBack(headless::RecordingEngine& engine, const std::string& method, const std::string& message) {
  bool known = false;
  enter([&] { known = engine.callBack(method, message); });
  return known;
}

bool DesktopWorld::clickMap(const std::string& x, const std::string& y) {
  const bool clicked = engines_->clickMap(x, y);
  settle();
  return clicked;
}

void DesktopWorld::openWindow(const std::string& /*title*/) {
  throw headless::ScriptError("the desktop tells of no other program's windows");
}

void DesktopWorld::settle() {
  desktop::hands::settle();
  desktop::hands::settle();
  if (calls_.hasEnded()) throw platform::ProgramEnd();
  if (const auto description = std::exchange(letOut_, std::nullopt)) throw Failure(kNotTold, *description);
}

}  // namespace desktop_replay

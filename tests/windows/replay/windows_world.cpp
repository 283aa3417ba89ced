#include "replay/windows_world.h"

#include <stdexcept>

#include "page_view/settings.h"
#include "platform/programs.h"
#include "text/failure.h"

namespace wintest {
namespace {

// The working window as large as its form is stored, in pixels.
constexpr SIZE kWindow{1024, 768};

constexpr int kErrorOfHandler = 0;  // nobody tells the number of a failure that was let out

}  // namespace

WindowsWorld::WindowsWorld(const std::string& applicationFolder, const std::optional<std::string>& registryFile,
                           const std::filesystem::path& viewer)
    : ports_(host_, calls_, applicationFolder),
      stage_(viewer),
      orders_([this] {
        if (!handleMessage()) waitForMessage();
      }),
      hands_(host_, [this] { settle(); }) {
  host_.setFirstSize(kWindow);
  stage_.install(registryFile);
  pageview::nameLocation("");
  calls_.failed = [this](const std::string& description) { letOut_ = description; };
}

void WindowsWorld::enter(const std::function<void()>& action) {
  calls_.run(action);
  settle();
}

bool WindowsWorld::callBack(headless::RecordingEngine& /*engine*/, const std::string& method,
                            const std::string& message) {
  return order({"callback", method, message});
}

bool WindowsWorld::clickMap(const std::string& x, const std::string& y) { return order({"mapclick", x, y}); }

bool WindowsWorld::order(const wire::Fields& order) {
  const bool wentWell = orders_.give(order);
  settle();
  return wentWell;
}

void WindowsWorld::nameLocation(const std::string& name) { pageview::nameLocation(name); }

// A script's time stands still: timers run when it says so.
bool WindowsWorld::handleMessage() {
  MSG message;
  if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) == 0) return false;
  if (message.message == WM_TIMER || message.message == WM_QUIT || host_.takeMessage(message)) return true;
  TranslateMessage(&message);
  DispatchMessageW(&message);
  return true;
}

void WindowsWorld::waitForMessage() {
  constexpr DWORD kMoment = 100;  // milliseconds
  MsgWaitForMultipleObjects(0, nullptr, FALSE, kMoment, QS_ALLINPUT);
}

void WindowsWorld::settle() {
  while (handleMessage()) {
  }
  throwWhatWasLetOut();
}

void WindowsWorld::throwWhatWasLetOut() {
  if (calls_.hasEnded()) throw platform::ProgramEnd();
  if (const auto description = std::exchange(letOut_, std::nullopt)) throw Failure(kErrorOfHandler, *description);
}

}  // namespace wintest

#include "relay/remote_windows.h"

#include <charconv>
#include <stdexcept>

#include "motor/session/map_window.h"

namespace relay {
namespace {

// As large as a map window without a screen, so that maps begin alike.
constexpr int kWidth = 640;
constexpr int kHeight = 480;

std::string handleOf(const motor::MapWindow& window) { return std::to_string(window.handle()); }

}  // namespace

std::int64_t RemoteWindows::tell(const wire::Fields& what) {
  try {
    const wire::Fields answer = conversation_.ask(what);
    std::int64_t number = 0;
    if (answer.size() > 1) std::from_chars(answer[1].data(), answer[1].data() + answer[1].size(), number);
    return number;
  } catch (const std::runtime_error&) {
    return 0;
  }
}

std::int64_t RemoteWindows::open(std::int32_t id, int width, int height) {
  return tell({"openmap", std::to_string(id), std::to_string(width), std::to_string(height)});
}

std::int64_t RemoteWindows::openMap(motor::MapWindow& window) {
  window.resized(kWidth, kHeight);
  return open(window.id(), kWidth, kHeight);
}

void RemoteWindows::closeMap(motor::MapWindow& window) {
  if (legendOf_ == &window) hideLegend();
  tell({"closemap", handleOf(window)});
}

void RemoteWindows::mapChanged(motor::MapWindow& window) {
  tell({"changed", handleOf(window)});
  if (legendOf_ == &window) tell({"changed", std::to_string(legend_)});
}

void RemoteWindows::resize(motor::MapWindow& window, int width, int height) {
  tell({"resize", handleOf(window), std::to_string(width), std::to_string(height)});
  window.resized(width, height);
}

void RemoteWindows::maximize(motor::MapWindow& window) { tell({"maximize", handleOf(window)}); }

void RemoteWindows::showLegend(motor::MapWindow& window, std::int64_t parent, int x, int y) {
  legendOf_ = &window;
  legend_ = tell({"showlegend", std::to_string(parent), std::to_string(x), std::to_string(y)});
}

void RemoteWindows::hideLegend() {
  if (legendOf_ == nullptr) return;
  forgetLegend();
  tell({"hidelegend"});
}

void RemoteWindows::forgetLegend() {
  legendOf_ = nullptr;
  legend_ = 0;
}

}  // namespace relay

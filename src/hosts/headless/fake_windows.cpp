#include "hosts/headless/fake_windows.h"

#include <algorithm>

namespace headless {

platform::WindowHandle FakeWindows::handleOf(const forms::Control& control) {
  platform::WindowHandle& handle = handles_[&control];
  if (handle == 0) handle = ++last_;
  return handle;
}

void FakeWindows::shown(const forms::Form& form) {
  if (std::ranges::find(shown_, &form) == shown_.end()) shown_.push_back(&form);
}

void FakeWindows::gone(const forms::Form& form) { std::erase(shown_, &form); }

platform::WindowHandle FakeWindows::addWindow(const std::string& title) {
  others_[++last_] = title;
  return last_;
}

platform::WindowHandle FakeWindows::find(const std::string& title) {
  const auto form = std::ranges::find(shown_, title, [](const forms::Form* shown) { return shown->caption(); });
  if (form != shown_.end()) return handleOf(**form);
  const auto other = std::ranges::find(others_, title, [](const auto& window) { return window.second; });
  return other == others_.end() ? 0 : other->first;
}

void FakeWindows::close(platform::WindowHandle window) { others_.erase(window); }

void FakeWindows::setParent(platform::WindowHandle child, platform::WindowHandle parent) { parents_[child] = parent; }

void FakeWindows::setZOrder(platform::WindowHandle window, platform::ZOrder order, unsigned /*flags*/) {
  topmost_[window] = order == platform::ZOrder::topmost;
}

platform::WindowHandle FakeWindows::parentOf(platform::WindowHandle child) const {
  const auto found = parents_.find(child);
  return found == parents_.end() ? 0 : found->second;
}

bool FakeWindows::isTopmost(platform::WindowHandle window) const {
  const auto found = topmost_.find(window);
  return found != topmost_.end() && found->second;
}

}  // namespace headless

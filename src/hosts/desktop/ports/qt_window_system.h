#pragma once

#include "hosts/desktop/qt_host.h"
#include "platform/window_system.h"

namespace desktop {

// The program's own top-level windows. No window of another program is ever found, and the screen decides how far a
// window can be kept in front of those.
class QtWindowSystem : public platform::WindowSystem {
 public:
  // Both outlive this.
  QtWindowSystem(QtHost& host, motor::WidgetHandles& handles) : host_(host), handles_(handles) {}

  [[nodiscard]] platform::WindowHandle find(const std::string& title) override;
  void close(platform::WindowHandle window) override;
  void setParent(platform::WindowHandle child, platform::WindowHandle parent) override;
  void setZOrder(platform::WindowHandle window, platform::ZOrder order, unsigned flags) override;

 private:
  QtHost& host_;
  motor::WidgetHandles& handles_;
};

}  // namespace desktop

#pragma once

#include <map>
#include <string>
#include <vector>

#include "forms/form.h"
#include "platform/window_system.h"

namespace headless {

// Windows in memory: every form and control has a handle; a shown form is a top-level window titled by its caption.
class FakeWindows : public platform::WindowSystem {
 public:
  // The handle of a form or control, the same each time.
  [[nodiscard]] platform::WindowHandle handleOf(const forms::Control& control);
  void shown(const forms::Form& form);
  void gone(const forms::Form& form);

  // A top-level window of another program; it closes when asked to.
  platform::WindowHandle addWindow(const std::string& title);

  [[nodiscard]] platform::WindowHandle find(const std::string& title) override;
  void close(platform::WindowHandle window) override;
  void setParent(platform::WindowHandle child, platform::WindowHandle parent) override;
  void setZOrder(platform::WindowHandle window, platform::ZOrder order, unsigned flags) override;

  // 0 when the window was given none.
  [[nodiscard]] platform::WindowHandle parentOf(platform::WindowHandle child) const;
  [[nodiscard]] bool isTopmost(platform::WindowHandle window) const;

 private:
  std::map<const forms::Control*, platform::WindowHandle> handles_;
  std::vector<const forms::Form*> shown_;
  std::map<platform::WindowHandle, std::string> others_;
  std::map<platform::WindowHandle, platform::WindowHandle> parents_;
  std::map<platform::WindowHandle, bool> topmost_;
  platform::WindowHandle last_ = 700000;
};

}  // namespace headless

#pragma once

#include <functional>

#include "hosts/headless/hands.h"
#include "hosts/windows/windows_host.h"

namespace wintest {

// Hands on the program's native windows: they send what the system sends when a user's real hands do it.
class NativeHands : public headless::Hands {
 public:
  // The host outlives this. `settle` handles messages until there are none; what the program threw leaves it.
  NativeHands(windows::WindowsHost& host, std::function<void()> settle) : host_(host), settle_(std::move(settle)) {}

  void click(forms::Control& control) override;
  void pick(forms::Control& control, int index) override;
  void enter(forms::Control& control) override;
  void release(forms::Control& control) override { click(control); }
  void pointAt(forms::Control& control) override;
  void type(forms::Control& control, const std::string& text) override;
  void edit(forms::Control& control, const std::string& text) override;
  void doubleClick(forms::Form& form) override;
  void close(forms::Form& form) override;
  void resize(forms::Form& form, forms::Twips width, forms::Twips height) override;
  void minimize(forms::Form& form) override;
  void restore(forms::Form& form) override;
  void tick(forms::Form& form) override;

 private:
  // Of a window that is not there nobody can touch anything.
  [[nodiscard]] bool isThere(const forms::Control& control) const { return host_.windowOf(control.form()) != nullptr; }
  [[nodiscard]] HWND windowOf(const forms::Control& control) const;
  [[nodiscard]] HWND windowOf(const forms::Form& form) const;

  windows::WindowsHost& host_;
  std::function<void()> settle_;
};

}  // namespace wintest

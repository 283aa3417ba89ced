#pragma once

#include <optional>
#include <string>

#include "forms/listener.h"
#include "hosts/headless/fake_windows.h"

namespace headless {

// A desktop without a screen: forms are only noted as windows, and the page view gives the location name it was told,
// else the name of the page's file.
class HeadlessListener : public forms::Listener {
 public:
  explicit HeadlessListener(FakeWindows& windows) : windows_(windows) {}

  void setLocationName(const std::string& name) { locationName_ = name; }

  void formLoaded(forms::Form& /*form*/) override {}
  void formShown(forms::Form& form) override { windows_.shown(form); }
  void formHidden(forms::Form& form) override { windows_.gone(form); }
  void formUnloaded(forms::Form& form) override { windows_.gone(form); }
  void written(forms::Control& /*control*/, forms::Property /*property*/) override {}
  void itemAdded(forms::Control& /*control*/, const std::string& /*item*/) override {}
  void cleared(forms::Control& /*control*/) override {}
  void nodeAdded(forms::TreeView& /*tree*/, const forms::Node& /*node*/) override {}
  void nodeExpanded(forms::TreeView& /*tree*/, const forms::Node& /*node*/) override {}
  void navigated(forms::WebBrowser& /*browser*/, const std::string& /*path*/) override {}
  [[nodiscard]] std::int64_t windowHandle(const forms::Control& control) override { return windows_.handleOf(control); }
  [[nodiscard]] std::string locationName(const forms::WebBrowser& browser) override;

 private:
  FakeWindows& windows_;
  std::optional<std::string> locationName_;
};

}  // namespace headless

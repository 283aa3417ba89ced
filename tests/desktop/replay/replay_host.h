#pragma once

#include <optional>
#include <string>

#include "hosts/desktop/qt_host.h"

namespace desktop_replay {

// The desktop's host for a replay: its windows have no frames of a desktop, whose sizes no script knows, and the page
// view gives the location name that it was told.
class ReplayHost : public desktop::QtHost {
 public:
  using QtHost::QtHost;

  void nameLocation(const std::string& name) { locationName_ = name; }

  void formLoaded(forms::Form& form) override {
    QtHost::formLoaded(form);
    windowOf(form)->setWindowFlag(Qt::FramelessWindowHint);
  }
  [[nodiscard]] std::string locationName(const forms::WebBrowser& browser) override {
    return locationName_ ? *locationName_ : QtHost::locationName(browser);
  }

 private:
  std::optional<std::string> locationName_;
};

}  // namespace desktop_replay

#pragma once

#include "hosts/desktop/qt_host.h"
#include "platform/messages.h"

namespace desktop {

class QtMessages : public platform::Messages {
 public:
  explicit QtMessages(QtHost& host) : host_(host) {}

  platform::Button show(const std::string& text, int style, const std::string& title) override;

 private:
  QtHost& host_;
};

}  // namespace desktop

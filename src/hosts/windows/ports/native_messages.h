#pragma once

#include "platform/messages.h"

namespace windows {

class WindowsHost;

// The system's message boxes, with the style and title given, in front of the program's own window. The program's other
// windows take no input meanwhile. When the user's session with the system ends nothing is shown, and the answer is No.
class NativeMessages : public platform::Messages {
 public:
  // The host outlives this.
  explicit NativeMessages(const WindowsHost& host) : host_(host) {}
  platform::Button show(const std::string& text, int style, const std::string& title) override;

 private:
  const WindowsHost& host_;
};

}  // namespace windows

#pragma once

#include "platform/dialogs.h"

namespace windows {

class WindowsHost;

// The system's save dialog (it asks nothing about files that are there already) and help viewer.
class NativeDialogs : public platform::Dialogs {
 public:
  // The host outlives this.
  explicit NativeDialogs(const WindowsHost& host) : host_(host) {}

  [[nodiscard]] std::string save(const std::string& title, const std::string& filter, const std::string& name) override;
  // WinHelp with the command given. Where there is no such file but a page of its name (".html"), the user's browser
  // shows that. Fails with 53 when there is neither.
  void help(const std::string& file, int command) override;

 private:
  const WindowsHost& host_;
};

}  // namespace windows

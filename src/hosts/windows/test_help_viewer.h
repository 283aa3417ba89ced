#pragma once

#include <string>
#include <vector>

#include "hosts/windows/win32/handles.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/window_class.h"

namespace windows::testing {

// For tests: stands for the system's help viewer, which is told by a message what to show, and notes what it is told.
// At most one at a time.
class HelpViewer {
 public:
  struct Told {
    unsigned command = 0;
    std::string file;
    HWND by = nullptr;
  };

  HelpViewer()
      : window_(CreateWindowExW(0, registered({.name = kClass, .receive = receive}), L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                nullptr, GetModuleHandleW(nullptr), nullptr)) {
    told_.clear();
  }
  ~HelpViewer() {
    window_.reset();
    UnregisterClassW(kClass, GetModuleHandleW(nullptr));
  }
  HelpViewer(const HelpViewer&) = delete;
  HelpViewer& operator=(const HelpViewer&) = delete;

  [[nodiscard]] static const std::vector<Told>& told() { return told_; }
  [[nodiscard]] static std::vector<unsigned> commands() {
    std::vector<unsigned> commands;
    for (const Told& told : told_) commands.push_back(told.command);
    return commands;
  }

 private:
  static constexpr const wchar_t* kClass = L"MS_WINHELP";  // by which the system finds it
  // What comes with the message; the file's name lies behind it, in the machine's code page.
  struct Wish {
    WORD size;
    WORD command;
    LONG data;
    LONG reserved;
    WORD placeOfFile;
    WORD placeOfData;
  };

  static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM sender, LPARAM data) {
    if (message != WM_COPYDATA) return DefWindowProcW(window, message, sender, data);
    const auto* bytes = static_cast<const char*>(reinterpret_cast<const COPYDATASTRUCT*>(data)->lpData);
    const auto* wish = reinterpret_cast<const Wish*>(bytes);
    const std::string file = wish->placeOfFile == 0 ? "" : fromAnsi(bytes + wish->placeOfFile);
    told_.push_back({wish->command, file, reinterpret_cast<HWND>(sender)});
    return TRUE;
  }

  static inline std::vector<Told> told_;
  WindowHandle window_;
};

}  // namespace windows::testing

#include "hosts/windows/message_loop.h"

namespace windows {
namespace {

void handle(const WindowsHost& host, const MSG& message) {
  if (host.takeMessage(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace

void runMessages(const WindowsHost& host) {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) handle(host, message);
}

bool runWaitingMessages(const WindowsHost& host) {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) return false;
    handle(host, message);
  }
  return true;
}

// Keys of menus and of the windows' frames stay. The thread's end is found in any range; it is for the loop outside.
void handleWaitingInput(const WindowsHost& host) {
  struct Range {
    UINT first;
    UINT last;
  };
  for (const Range range : {Range{WM_KEYDOWN, WM_DEADCHAR}, Range{WM_LBUTTONDOWN, WM_MBUTTONDBLCLK}}) {
    MSG message;
    while (PeekMessageW(&message, nullptr, range.first, range.last, PM_REMOVE) != FALSE) {
      if (message.message == WM_QUIT) return PostQuitMessage(static_cast<int>(message.wParam));
      handle(host, message);
    }
  }
}

}  // namespace windows

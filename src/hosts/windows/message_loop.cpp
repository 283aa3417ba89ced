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

}  // namespace windows

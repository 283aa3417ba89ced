#include "hosts/windows/com/pulse.h"

#include <utility>

#include "hosts/windows/win32/message_window.h"
#include "hosts/windows/windows_host.h"

namespace windows {
namespace {

constexpr UINT kBeat = WM_APP;
constexpr DWORD kInterval = 500;  // milliseconds

}  // namespace

Pulse::Pulse(WindowsHost& host) : host_(host), window_(makeMessageWindow(L"VeldoriaPulse", receive, this)) {
  host_.workBegan = [this] { start(); };
}

Pulse::~Pulse() {
  host_.workBegan = nullptr;
  stop();
}

// On another thread: the message is all that it does.
void Pulse::beat(void* window, BOOLEAN) { PostMessageW(static_cast<HWND>(window), kBeat, 0, 0); }

void Pulse::start() {
  if (timer_ != nullptr) return;
  CreateTimerQueueTimer(&timer_, nullptr, beat, window_.get(), kInterval, kInterval, WT_EXECUTEDEFAULT);
}

void Pulse::stop() {
  if (timer_ != nullptr) static_cast<void>(DeleteTimerQueueTimer(nullptr, std::exchange(timer_, nullptr), nullptr));
}

LRESULT Pulse::receive(HWND window, UINT message, WPARAM wide, LPARAM large) {
  auto* pulse = ownerOf<Pulse>(window);
  if (pulse == nullptr || message != kBeat) return DefWindowProcW(window, message, wide, large);
  const WindowsHost& host = pulse->host_;
  if (!host.calls().isBusy() && !host.isUnattended()) pulse->stop();
  return 0;
}

}  // namespace windows

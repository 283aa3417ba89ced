#include "hosts/windows/modal_time.h"

#include "hosts/windows/message_loop.h"
#include "hosts/windows/windows_host.h"

namespace windows {

ModalTime::ModalTime(const WindowsHost& host)
    : windows_(host.waitingWindows()),
      work_(host.work().isUnderWay() ? &host.work() : nullptr),
      owner_(host.frontWindow()) {
  if (work_ != nullptr && work_->end(GetTickCount())) handleWaitingInput(host);
  windows_.boxOpened();
  for (const FormWindow* window : host.windows()) {
    const HWND handle = window->handle();
    if (handle == owner_ || IsWindowEnabled(handle) == FALSE) continue;
    EnableWindow(handle, FALSE);
    disabled_.push_back(handle);
  }
}

ModalTime::~ModalTime() {
  for (const HWND window : disabled_) EnableWindow(window, TRUE);
  windows_.boxClosed();
  if (work_ != nullptr) work_->begin(GetTickCount());
}

}  // namespace windows

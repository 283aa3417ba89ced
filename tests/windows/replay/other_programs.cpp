#include "replay/other_programs.h"

#include <future>

#include "hosts/windows/win32/wide_text.h"

namespace wintest {
namespace {

// A window with the system's own class, which is destroyed when it is asked to close.
void liveWith(const std::wstring& title, std::promise<DWORD>& opened) {
  CreateWindowExW(0, WC_STATICW, title.c_str(), WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr, nullptr, nullptr,
                  nullptr);
  opened.set_value(GetCurrentThreadId());
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
}

}  // namespace

OtherPrograms::~OtherPrograms() {
  for (Other& other : others_) {
    PostThreadMessageW(other.id, WM_QUIT, 0, 0);
    other.thread.join();
  }
}

void OtherPrograms::openWindow(const std::string& title) {
  std::promise<DWORD> opened;
  Other other;
  other.thread = std::thread(liveWith, windows::wide(title), std::ref(opened));
  other.id = opened.get_future().get();
  others_.push_back(std::move(other));
}

}  // namespace wintest

#include "ole/engine_box.h"

#include <chrono>

#include "hosts/windows/win32/windows_h.h"

namespace wintest {

EngineBox::EngineBox() : thread_([this] { watch(); }) {}

EngineBox::~EngineBox() {
  leaving_ = true;
  thread_.join();
}

void EngineBox::watch() {
  constexpr auto kMoment = std::chrono::milliseconds(50);
  while (!leaving_) {
    if (const HWND box = FindWindowW(L"#32770", L"MapInfo")) {
      const bool isSeenAgain = seen_.exchange(true);
      if (isSeenAgain) PostMessageW(GetDlgItem(box, IDOK), BM_CLICK, 0, 0);
      // A box with one button has it under another number.
      if (isSeenAgain) PostMessageW(GetDlgItem(box, IDCANCEL), BM_CLICK, 0, 0);
    }
    std::this_thread::sleep_for(kMoment);
  }
}

}  // namespace wintest

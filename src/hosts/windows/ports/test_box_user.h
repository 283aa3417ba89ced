#pragma once

#include <array>
#include <functional>
#include <set>
#include <string_view>
#include <utility>

#include "hosts/windows/win32/message_window.h"
#include "hosts/windows/win32/windows_h.h"

namespace windows::testing {

// Presses a box's button as soon as the box handles messages again.
inline void press(HWND box, int button) { PostMessageW(GetDlgItem(box, button), BM_CLICK, 0, 0); }

// The user of the modal boxes of this thread: while it lives, and there is one at a time, `use` is called with each box
// that opens, as soon as the box handles messages. What it does has to end the box.
class BoxUser {
 public:
  using Use = std::function<void(HWND box)>;

  explicit BoxUser(Use use)
      : use_(std::move(use)),
        window_(makeMessageWindow(L"VeldoriaBoxUser", receive, this)),
        hook_(SetWindowsHookExW(WH_CBT, watch, nullptr, GetCurrentThreadId())) {
    user_ = this;
  }
  ~BoxUser() {
    UnhookWindowsHookEx(hook_);
    user_ = nullptr;
  }
  BoxUser(const BoxUser&) = delete;
  BoxUser& operator=(const BoxUser&) = delete;

  // How many boxes have been used.
  [[nodiscard]] int count() const { return count_; }

 private:
  static constexpr UINT kOpened = WM_APP;

  static bool isBox(HWND window) {
    std::array<wchar_t, 8> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return std::wstring_view(name.data()) == L"#32770";
  }

  // A box is used once it takes messages from its queue: it has been set up by then.
  static LRESULT CALLBACK watch(int code, WPARAM window, LPARAM more) {
    const HWND box = reinterpret_cast<HWND>(window);
    if (code == HCBT_DESTROYWND) user_->known_.erase(box);
    const bool isNew = code == HCBT_ACTIVATE && isBox(box) && user_->known_.insert(box).second;
    if (isNew) PostMessageW(user_->window_.get(), kOpened, window, 0);
    return CallNextHookEx(nullptr, code, window, more);
  }

  static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM box, LPARAM more) {
    auto* user = ownerOf<BoxUser>(window);
    if (message != kOpened || user == nullptr) return DefWindowProcW(window, message, box, more);
    ++user->count_;
    user->use_(reinterpret_cast<HWND>(box));
    return 0;
  }

  static inline BoxUser* user_ = nullptr;  // a hook is told nothing of its own

  Use use_;
  std::set<HWND> known_;
  WindowHandle window_;
  HHOOK hook_;
  int count_ = 0;
};

}  // namespace windows::testing

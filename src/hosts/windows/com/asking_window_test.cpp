#include "hosts/windows/com/asking_window.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <future>
#include <thread>
#include <vector>

#include "hosts/windows/win32/handles.h"

namespace windows {
namespace {

constexpr const wchar_t* kDialog = L"#32770";

WindowHandle opened(const wchar_t* className, HWND owner, DWORD style = WS_POPUP | WS_VISIBLE) {
  return WindowHandle(CreateWindowExW(0, className, L"", style, 0, 0, 90, 90, owner, nullptr, nullptr, nullptr));
}

class AskingWindow : public ::testing::Test {
 protected:
  // What is found of another thread's windows, which `open` opens there and this thread looks at.
  HWND found(const std::function<void(std::vector<WindowHandle>&)>& open) {
    std::promise<DWORD> ready;
    std::promise<void> seen;
    const std::jthread other([&] {
      std::vector<WindowHandle> windows;
      open(windows);
      ready.set_value(GetCurrentThreadId());
      const std::future<void> done = seen.get_future();
      handleMessagesUntil(done);
    });
    std::future<DWORD> thread = ready.get_future();
    handleMessagesUntil(thread);
    const HWND window = askingWindow(thread.get());
    seen.set_value();
    return window;
  }
  // The windows of two threads wait for each other.
  template <class Result>
  static void handleMessagesUntil(const std::future<Result>& result) {
    while (result.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
      MSG message;
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
    }
  }

  WindowHandle ours = opened(WC_STATICW, nullptr);
  HWND expected = nullptr;
};

TEST_F(AskingWindow, IsNoLegendInFrontOfAWindowOfOurs) {
  const HWND window = found([this](auto& windows) { windows.push_back(opened(WC_STATICW, ours.get())); });
  EXPECT_EQ(window, nullptr);
}

TEST_F(AskingWindow, IsTheBoxBehindALegend) {
  const HWND window = found([this](auto& windows) {
    windows.push_back(opened(kDialog, nullptr));
    expected = windows.back().get();
    windows.push_back(opened(WC_STATICW, ours.get()));
  });
  EXPECT_EQ(window, expected);
}

TEST_F(AskingWindow, IsABoxThatHasDisabledOurWindow) {
  EnableWindow(ours.get(), FALSE);
  const HWND window = found([this](auto& windows) {
    windows.push_back(opened(kDialog, ours.get()));
    expected = windows.back().get();
    windows.push_back(opened(WC_STATICW, ours.get()));
  });
  EXPECT_EQ(window, expected);
}

TEST_F(AskingWindow, IsAnyOtherWindowWhereThereIsNoBox) {
  const HWND window = found([this](auto& windows) {
    windows.push_back(opened(WC_STATICW, nullptr));
    expected = windows.back().get();
    windows.push_back(opened(kDialog, nullptr, WS_POPUP));
    windows.push_back(opened(kDialog, nullptr, WS_POPUP | WS_VISIBLE | WS_DISABLED));
  });
  EXPECT_EQ(window, expected);
}

TEST_F(AskingWindow, IsAWindowThatHasDisabledItsOwnerRatherThanOthers) {
  const HWND window = found([this](auto& windows) {
    windows.push_back(opened(WC_STATICW, nullptr, WS_POPUP | WS_VISIBLE | WS_DISABLED));
    windows.push_back(opened(WC_STATICW, windows.back().get()));
    expected = windows.back().get();
    windows.push_back(opened(WC_STATICW, nullptr));
  });
  EXPECT_EQ(window, expected);
}

}  // namespace
}  // namespace windows

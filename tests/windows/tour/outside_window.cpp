#include "tour/outside_window.h"

#include <chrono>
#include <stdexcept>
#include <thread>

#include "hosts/windows/win32/wide_text.h"

namespace wintour {
namespace {

constexpr auto kPatience = std::chrono::seconds(60);
constexpr auto kBlink = std::chrono::milliseconds(20);

struct Gathering {
  std::wstring windowClass;
  std::vector<HWND> found;
};

std::wstring classOf(HWND window) {
  std::wstring name(128, L'\0');
  name.resize(static_cast<std::size_t>(GetClassNameW(window, name.data(), static_cast<int>(name.size()))));
  return name;
}

BOOL CALLBACK gather(HWND window, LPARAM into) {
  auto& gathering = *reinterpret_cast<Gathering*>(into);
  const bool isWanted = gathering.windowClass.empty() || classOf(window) == gathering.windowClass;
  if (isWanted && IsWindowVisible(window) != 0) gathering.found.push_back(window);
  return TRUE;
}

void press(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  SendInput(1, &input, sizeof input);
}

void click() {
  press(MOUSEEVENTF_LEFTDOWN);
  press(MOUSEEVENTF_LEFTUP);
}

POINT middleOf(HWND window) {
  RECT room{};
  GetClientRect(window, &room);
  return {room.right / 2, room.bottom / 2};
}

void pointAt(HWND window, POINT point) {
  ClientToScreen(window, &point);
  SetCursorPos(point.x, point.y);
}

}  // namespace

void waitUntil(const std::string& what, const std::function<bool()>& so) {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!so()) {
    if (std::chrono::steady_clock::now() > end) throw std::runtime_error("waited in vain: " + what);
    std::this_thread::sleep_for(kBlink);
  }
}

HWND awaitWindow(const std::wstring& title) {
  HWND window = nullptr;
  waitUntil("window " + windows::utf8(title), [&] {
    window = FindWindowW(nullptr, title.c_str());
    return window != nullptr && IsWindowVisible(window) != 0;
  });
  return window;
}

std::vector<HWND> childrenOf(HWND window, const std::wstring& windowClass) {
  Gathering gathering{windowClass, {}};
  EnumChildWindows(window, gather, reinterpret_cast<LPARAM>(&gathering));
  return gathering.found;
}

HWND childWithText(HWND window, const std::wstring& text) {
  for (const HWND child : childrenOf(window, L"")) {
    if (textOf(child) == text) return child;
  }
  throw std::runtime_error("nothing is called " + windows::utf8(text));
}

std::wstring textOf(HWND window) {
  std::wstring text(512, L'\0');
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG, 5000,
                      &length);
  text.resize(length);
  return text;
}

bool isIdle(HWND window) {
  DWORD_PTR ignored = 0;
  return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 200, &ignored) != 0;
}

void clickOn(HWND window) { clickOn(window, middleOf(window)); }

void clickOn(HWND window, POINT point) {
  pointAt(window, point);
  click();
}

void doubleClickOn(HWND window) {
  pointAt(window, middleOf(window));
  click();
  click();
}

}  // namespace wintour

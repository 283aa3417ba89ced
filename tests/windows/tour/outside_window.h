#pragma once

#include <functional>
#include <string>
#include <vector>

#include "hosts/windows/win32/windows_h.h"

namespace wintour {

// Another program's windows, driven from outside by what crosses the border between processes: texts, numbers and the
// pointer. What is not found in time is a std::runtime_error that names it.

// Waits until something is so.
void waitUntil(const std::string& what, const std::function<bool()>& so);
// The visible top-level window of that title, waited for.
[[nodiscard]] HWND awaitWindow(const std::wstring& title);
// The window's visible descendants of a class.
[[nodiscard]] std::vector<HWND> childrenOf(HWND window, const std::wstring& windowClass);
// The first of them whose text is that one; fails where there is none.
[[nodiscard]] HWND childWithText(HWND window, const std::wstring& text);
[[nodiscard]] std::wstring textOf(HWND window);
// Whether the window answers messages.
[[nodiscard]] bool isIdle(HWND window);

// The user's pointer goes to the middle of a window, or to a point of it, and clicks.
void clickOn(HWND window);
void clickOn(HWND window, POINT point);
void doubleClickOn(HWND window);

}  // namespace wintour

#include "hosts/windows/win32/window_text.h"

#include "hosts/windows/win32/wide_text.h"

namespace windows {

std::string textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return utf8(text);
}

}  // namespace windows

#include "hosts/windows/win32/clipboard.h"

#include <algorithm>

#include "hosts/windows/win32/wide_text.h"

namespace windows {

void copyText(HWND owner, const std::string& text) {
  std::string lines;
  for (const char c : text) {
    if (c == '\n') lines.push_back('\r');
    lines.push_back(c);
  }
  const std::wstring written = wide(lines);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (written.size() + 1) * sizeof(wchar_t));
  if (memory == nullptr) return;
  auto* letters = static_cast<wchar_t*>(GlobalLock(memory));
  if (letters != nullptr) {
    std::copy_n(written.c_str(), written.size() + 1, letters);
    GlobalUnlock(memory);
  }
  bool given = false;
  if (letters != nullptr && OpenClipboard(owner) != FALSE) {
    EmptyClipboard();
    given = SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
    CloseClipboard();
  }
  if (!given) GlobalFree(memory);
}

}  // namespace windows

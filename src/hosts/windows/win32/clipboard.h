#pragma once

#include <string>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// Puts a text with lines that end in "\n" on the clipboard. Where that cannot be had, what was copied before stays.
void copyText(HWND owner, const std::string& text);

}  // namespace windows

#pragma once

#include <string>

#include "hosts/windows/win32/windows_h.h"

namespace comserver {

// The DLL or program that this code stands in, and its file.
[[nodiscard]] HINSTANCE thisModule();
[[nodiscard]] std::wstring thisFile();

}  // namespace comserver

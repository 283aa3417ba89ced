#pragma once

#include <string>

#include "hosts/windows/win32/windows_h.h"

namespace comserver {

// A class's registration for the whole machine. Everything is false or nothing when the registry refuses.

// The text of a class id, in braces.
[[nodiscard]] std::wstring classText(REFCLSID id);
// A DLL, loaded into whoever makes an object; what was registered for the class before is gone.
[[nodiscard]] bool registerDll(REFCLSID id, const std::wstring& path);
// A program that is started for whoever makes an object.
[[nodiscard]] bool registerProgram(REFCLSID id, const std::wstring& path);
// The name by which a class is found.
[[nodiscard]] bool registerName(const std::wstring& programId, REFCLSID id);
void unregisterClass(REFCLSID id);
void unregisterName(const std::wstring& programId);

}  // namespace comserver

#pragma once

#include <string>

namespace pageview {

// What a test tells the page view of its program, in the machine's registry below HKEY_LOCAL_MACHINE.
inline constexpr const wchar_t* kSettingsKey = L"Software\\Page view under test";

// What every page is named from now on; empty for its own title or file name.
void nameLocation(const std::string& name);
[[nodiscard]] std::wstring locationName();

}  // namespace pageview

#include "page_view/settings.h"

#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/windows_h.h"

namespace pageview {
namespace {

constexpr const wchar_t* kLocationName = L"LocationName";

}  // namespace

void nameLocation(const std::string& name) {
  const std::wstring value = windows::wide(name);
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, kSettingsKey, kLocationName, REG_SZ, value.c_str(),
                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

std::wstring locationName() {
  std::wstring value(1024, L'\0');
  auto size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
  if (RegGetValueW(HKEY_LOCAL_MACHINE, kSettingsKey, kLocationName, RRF_RT_REG_SZ, nullptr, value.data(), &size) != 0) {
    return {};
  }
  value.resize(value.find(L'\0'));
  return value;
}

}  // namespace pageview

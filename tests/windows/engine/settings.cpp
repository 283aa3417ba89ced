#include "engine/settings.h"

#include <stdexcept>

#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/windows_h.h"

namespace testengine {
namespace {

constexpr const wchar_t* kPort = L"Port";
constexpr const wchar_t* kRun = L"Run";
constexpr const wchar_t* kLog = L"Log";
constexpr const wchar_t* kFrame = L"Frame";

DWORD number(const wchar_t* name) {
  DWORD value = 0;
  DWORD size = sizeof value;
  RegGetValueW(HKEY_LOCAL_MACHINE, kSettingsKey, name, RRF_RT_REG_DWORD, nullptr, &value, &size);
  return value;
}

std::wstring text(const wchar_t* name) {
  DWORD size = 0;
  if (RegGetValueW(HKEY_LOCAL_MACHINE, kSettingsKey, name, RRF_RT_REG_SZ, nullptr, nullptr, &size) != 0) return {};
  std::wstring value(size / sizeof(wchar_t), L'\0');
  RegGetValueW(HKEY_LOCAL_MACHINE, kSettingsKey, name, RRF_RT_REG_SZ, nullptr, value.data(), &size);
  value.resize(value.find(L'\0'));
  return value;
}

void write(const wchar_t* name, DWORD type, const void* value, std::size_t size) {
  if (RegSetKeyValueW(HKEY_LOCAL_MACHINE, kSettingsKey, name, type, value, static_cast<DWORD>(size)) != 0) {
    throw std::runtime_error("the engine's settings cannot be written");
  }
}

void write(const wchar_t* name, DWORD value) { write(name, REG_DWORD, &value, sizeof value); }

void write(const wchar_t* name, const std::wstring& value) {
  write(name, REG_SZ, value.c_str(), (value.size() + 1) * sizeof(wchar_t));
}

}  // namespace

Settings Settings::read() {
  return {.port = static_cast<std::uint16_t>(number(kPort)),
          .run = windows::utf8(text(kRun)),
          .log = text(kLog),
          .hasFrame = number(kFrame) != 0};
}

void Settings::write() const {
  testengine::write(kPort, DWORD{port});
  testengine::write(kRun, windows::wide(run));
  testengine::write(kLog, log);
  testengine::write(kFrame, DWORD{hasFrame});
}

}  // namespace testengine

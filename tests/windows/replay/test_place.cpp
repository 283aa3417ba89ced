#include "replay/test_place.h"

#include <stdexcept>

#include "engine/settings.h"
#include "hosts/windows/win32/wide_text.h"

namespace wintest {
namespace {

std::wstring variable(const wchar_t* name) {
  const wchar_t* value = _wgetenv(name);
  if (value == nullptr) throw std::runtime_error(windows::utf8(name) + " is not set");
  return value;
}

}  // namespace

TestPlace TestPlace::fromEnvironment() {
  return {.app = windows::utf8(variable(L"VELDORIA_APP")),
          .machineApp = windows::utf8(variable(L"VELDORIA_MACHINE_APP")),
          .viewer = variable(L"VELDORIA_VIEWER"),
          .port = static_cast<std::uint16_t>(std::stoi(variable(L"VELDORIA_RELAY"))),
          .log = {}};
}

void TestPlace::tellEngine(const std::string& run, const std::string& machineEngineFile) const {
  testengine::Settings settings;
  settings.port = port;
  settings.run = run + "|" + app + "|" + machineApp + "|" + machineEngineFile;
  settings.log = log;
  settings.write();
}

}  // namespace wintest

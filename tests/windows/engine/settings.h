#pragma once

#include <cstdint>
#include <string>

namespace testengine {

// What a test tells its engine beforehand, in the machine's registry below HKEY_LOCAL_MACHINE.
inline constexpr const wchar_t* kSettingsKey = L"Software\\Map engine under test";

struct Settings {
  std::uint16_t port = 0;  // of the relay
  std::string run;         // as the relay reads it
  std::wstring log;        // a file that every call is written to; none when empty
  bool hasFrame = false;   // whether it opens the top-level window "MapInfo", as the outside engine does

  [[nodiscard]] static Settings read();
  // Fails with std::runtime_error.
  void write() const;
};

}  // namespace testengine

#pragma once

#include <array>
#include <string>
#include <string_view>

namespace headless {

inline constexpr std::string_view kAppPaths = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

// What is installed in a replay's world where no registry file says otherwise.
struct InstalledProgram {
  std::string_view name;  // below kAppPaths
  std::string_view folder;
  std::string_view executable;

  [[nodiscard]] std::string key() const { return std::string(kAppPaths).append(name); }
  [[nodiscard]] std::string path() const { return std::string(folder).append("\\").append(executable); }
};
inline constexpr std::array kInstalledPrograms{
    InstalledProgram{"Mapinfor.exe", "C:\\Archivos de programa\\MapInfo\\ProViewer", "mapinfor.exe"},
    InstalledProgram{"ACRORD32.exe", "C:\\Archivos de programa\\Adobe\\Reader", "ACRORD32.exe"},
};

}  // namespace headless

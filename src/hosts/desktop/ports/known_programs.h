#pragma once

#include <array>
#include <string>
#include <string_view>

// The outside programs that the study asks for by name, and what stands for each on this desktop.
namespace desktop {

enum class Stand {
  engine,     // built in
  browser,    // the user's own web browser
  pdfReader,  // the user's own reader
};

struct KnownProgram {
  std::string_view executable;  // as its registry key and its command lines name it
  std::string_view fileName;    // as a look-up of the executable finds it
  Stand stand;
};

inline constexpr std::array kKnownPrograms{
    KnownProgram{"Mapinfor.exe", "mapinfor.exe", Stand::engine},
    KnownProgram{"ACRORD32.exe", "ACRORD32.exe", Stand::pdfReader},
    KnownProgram{"Acrobat.exe", "Acrobat.exe", Stand::pdfReader},
    KnownProgram{"IEXPLORE.EXE", "IEXPLORE.EXE", Stand::browser},
};

// The folder that the registry gives for all of them: no folder of the machine has this name.
inline constexpr std::string_view kDesktopFolder = "escritorio:";

// The program that a path ends in, without regard to case; null when it is none of them.
[[nodiscard]] const KnownProgram* programOfPath(const std::string& path);

// What of this the desktop has.
class DesktopPrograms {
 public:
  virtual ~DesktopPrograms() = default;
  [[nodiscard]] virtual bool has(Stand stand) const = 0;
  // Opens a document, by its machine path, with what the user has chosen for its kind. False when there is nothing.
  virtual bool open(const std::string& file) = 0;
};

}  // namespace desktop

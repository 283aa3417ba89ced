#include <exception>

#include "hosts/windows/program_name.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/windows_h.h"
#include "hosts/windows/windows_program.h"

// The atlas on Windows. The study lies in the folder of the executable.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  // A file on a disc that was taken out is missing: the program says so, not a box of the system's.
  SetErrorMode(SEM_FAILCRITICALERRORS);
  try {
    windows::WindowsProgram program(windows::executableFolder());
    program.run();
    return 0;
  } catch (const std::exception& problem) {
    MessageBoxW(nullptr, windows::wide(problem.what()).c_str(), windows::wide(windows::kProgramName).c_str(),
                MB_ICONERROR);
    return 1;
  }
}

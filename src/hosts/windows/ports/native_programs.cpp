#include "hosts/windows/ports/native_programs.h"

#include "hosts/windows/win32/handles.h"
#include "hosts/windows/win32/wide_text.h"
#include "text/failure.h"

namespace windows {

void NativePrograms::start(const std::string& commandLine) {
  std::wstring line = wide(commandLine);
  STARTUPINFOW how{};
  how.cb = sizeof how;
  how.dwFlags = STARTF_USESHOWWINDOW;
  how.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION started{};
  const BOOL done = CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &started);
  if (done == FALSE) throw failures::fileNotFound();
  const KernelHandle process(started.hProcess);
  const KernelHandle thread(started.hThread);
  AllowSetForegroundWindow(started.dwProcessId);
}

}  // namespace windows

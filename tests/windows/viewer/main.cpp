#include <filesystem>
#include <fstream>

#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/windows_h.h"

// Stands for the browser, the readers of documents and the help viewer: adds its command line to the file
// C:\viewers.log and ends.
int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*earlier*/, wchar_t* /*arguments*/, int show) {
  std::ofstream(std::filesystem::path(L"C:\\viewers.log"), std::ios::app | std::ios::binary)
      << windows::utf8(GetCommandLineW()) << (show == SW_SHOWNORMAL ? "" : " not shown") << '\n';
  return 0;
}

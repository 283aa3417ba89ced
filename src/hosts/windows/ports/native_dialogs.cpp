#include "hosts/windows/ports/native_dialogs.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "hosts/screen/file_filters.h"
#include "hosts/windows/modal_time.h"
#include "hosts/windows/ports/native_files.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/windows_host.h"
#include "text/failure.h"
#include "text/utf8.h"

namespace windows {
namespace {

constexpr std::size_t kLongestPath = 4096;  // letters

// Descriptions and patterns, each with its terminator, and one more at the end.
std::wstring dialogFilter(const std::string& filter) {
  std::wstring result;
  for (const screen::FileFilter& row : screen::fileFilters(filter)) {
    result += wide(row.description) + L'\0' + wide(row.patterns) + L'\0';
  }
  return result + L'\0';
}

// A page's title may hold signs that no file name can, and the dialog refuses to open with them.
std::wstring proposedName(const std::string& name) {
  std::wstring proposed = wide(name);
  constexpr std::wstring_view kForbidden = L"<>:\"/\\|?*";
  const bool isPath = proposed.size() > 2 && proposed[1] == L':' && proposed[2] == L'\\';
  if (isPath) return proposed;
  const auto isForbidden = [&](wchar_t c) { return c < L' ' || kForbidden.find(c) != std::wstring_view::npos; };
  std::ranges::replace_if(proposed, isForbidden, L'-');
  return proposed;
}

}  // namespace

std::string NativeDialogs::save(const std::string& title, const std::string& filter, const std::string& name) {
  const ModalTime modal(host_);
  const std::wstring dialogTitle = wide(title);
  const std::wstring filters = dialogFilter(filter);
  std::vector<wchar_t> file(kLongestPath);
  const std::wstring proposed = proposedName(name).substr(0, kLongestPath - 1);
  std::ranges::copy(proposed, file.begin());

  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = modal.owner();
  dialog.lpstrTitle = dialogTitle.c_str();
  dialog.lpstrFilter = filters.c_str();
  dialog.lpstrFile = file.data();
  dialog.nMaxFile = static_cast<DWORD>(file.size());
  dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  return GetSaveFileNameW(&dialog) == FALSE ? name : utf8(file.data());
}

void NativeDialogs::help(const std::string& file, int command) {
  constexpr std::string_view kOlderFormat = ".hlp";
  NativeFiles files;
  if (!files.lookUp(file).empty()) {
    WinHelpW(host_.frontWindow(), wide(file).c_str(), static_cast<UINT>(command), 0);
    return;
  }
  if (!text::lower(file).ends_with(kOlderFormat)) throw failures::fileNotFound();
  const std::string page = file.substr(0, file.size() - kOlderFormat.size()) + ".html";
  if (files.lookUp(page).empty()) throw failures::fileNotFound();
  ShellExecuteW(host_.frontWindow(), L"open", wide(page).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace windows

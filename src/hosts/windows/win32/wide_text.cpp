#include "hosts/windows/win32/wide_text.h"

#include "hosts/windows/win32/windows_h.h"

namespace windows {
namespace {

std::wstring widened(UINT codePage, std::string_view s) {
  const int length = static_cast<int>(s.size());
  std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, s.data(), length, nullptr, 0)), L'\0');
  MultiByteToWideChar(codePage, 0, s.data(), length, result.data(), static_cast<int>(result.size()));
  return result;
}

std::string narrowed(UINT codePage, DWORD flags, std::wstring_view s, BOOL* lost) {
  const int length = static_cast<int>(s.size());
  const int size = WideCharToMultiByte(codePage, flags, s.data(), length, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(codePage, flags, s.data(), length, result.data(), size, nullptr, lost);
  return result;
}

}  // namespace

std::wstring wide(std::string_view utf8) { return widened(CP_UTF8, utf8); }

std::string utf8(std::wstring_view wide) { return narrowed(CP_UTF8, 0, wide, nullptr); }

// A machine may have UTF-8 as its code page, which writes everything and takes no flags.
std::optional<std::string> ansi(std::string_view utf8) {
  if (GetACP() == CP_UTF8) return std::string(utf8);
  BOOL lost = FALSE;
  std::string result = narrowed(CP_ACP, WC_NO_BEST_FIT_CHARS, wide(utf8), &lost);
  if (lost != FALSE) return std::nullopt;
  return result;
}

std::string fromAnsi(std::string_view ansi) { return utf8(widened(CP_ACP, ansi)); }

}  // namespace windows

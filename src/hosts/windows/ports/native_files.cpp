#include "hosts/windows/ports/native_files.h"

#include <string_view>

#include "hosts/windows/win32/handles.h"
#include "hosts/windows/win32/wide_text.h"
#include "text/failure.h"

namespace windows {
namespace {

constexpr DWORD kNeverListed = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

// Calls `take` with each entry that a search pattern finds, until it answers false.
template <class Take>
void search(const std::string& pattern, Take take) {
  WIN32_FIND_DATAW entry;
  const HANDLE first = FindFirstFileW(wide(pattern).c_str(), &entry);
  if (first == INVALID_HANDLE_VALUE) return;
  const SearchHandle found(first);
  do {
    if (!take(entry)) return;
  } while (FindNextFileW(found.get(), &entry) != FALSE);
}

bool isFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace

std::string NativeFiles::lookUp(const std::string& path) {
  std::string name;
  search(path, [&name](const WIN32_FIND_DATAW& entry) {
    if ((entry.dwFileAttributes & kNeverListed) != 0) return true;
    name = utf8(entry.cFileName);
    return false;
  });
  return name;
}

std::vector<std::string> NativeFiles::folders(const std::string& path) {
  std::vector<std::string> names;
  search(path + "\\*", [&names](const WIN32_FIND_DATAW& entry) {
    const std::wstring_view name(entry.cFileName);
    const bool isFolder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (isFolder && name != L"." && name != L"..") names.push_back(utf8(name));
    return true;
  });
  return names;
}

void NativeFiles::copy(const std::string& from, const std::string& to) {
  const std::wstring source = wide(from);
  const std::wstring target = wide(to);
  if (!isFile(source)) throw failures::fileNotFound();
  const bool existed = isFile(target);
  if (CopyFileW(source.c_str(), target.c_str(), FALSE) != FALSE) return;
  if (!existed) DeleteFileW(target.c_str());
  throw failures::pathAccess();
}

}  // namespace windows

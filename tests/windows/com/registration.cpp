#include "com/registration.h"

namespace comserver {
namespace {

// A class in the user's own part of the registry would not be found.
const std::wstring kClasses = L"Software\\Classes\\";

std::wstring classKey(REFCLSID id) { return kClasses + L"CLSID\\" + classText(id); }

bool write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, value.c_str(),
                         static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

}  // namespace

std::wstring classText(REFCLSID id) {
  std::wstring text(40, L'\0');
  text.resize(static_cast<std::size_t>(StringFromGUID2(id, text.data(), 40)) - 1);
  return text;
}

bool registerDll(REFCLSID id, const std::wstring& path) {
  unregisterClass(id);
  const std::wstring server = classKey(id) + L"\\InprocServer32";
  return write(server, nullptr, path) && write(server, L"ThreadingModel", L"Apartment");
}

bool registerProgram(REFCLSID id, const std::wstring& path) {
  unregisterClass(id);
  return write(classKey(id) + L"\\LocalServer32", nullptr, L"\"" + path + L"\"");
}

bool registerName(const std::wstring& programId, REFCLSID id) {
  return write(kClasses + programId + L"\\CLSID", nullptr, classText(id)) &&
         write(classKey(id) + L"\\ProgID", nullptr, programId);
}

void unregisterClass(REFCLSID id) { RegDeleteTreeW(HKEY_LOCAL_MACHINE, classKey(id).c_str()); }

void unregisterName(const std::wstring& programId) {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (kClasses + programId).c_str());
}

}  // namespace comserver

#include "com/module.h"

namespace comserver {

HINSTANCE thisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&thisModule), &module);
  return module;
}

std::wstring thisFile() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(thisModule(), path.data(), MAX_PATH));
  return path;
}

}  // namespace comserver

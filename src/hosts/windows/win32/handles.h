#pragma once

#include "hosts/windows/win32/unique_handle.h"
#include "hosts/windows/win32/windows_h.h"

namespace windows {

using WindowHandle = UniqueHandle<HWND, DestroyWindow>;
using RegistryKeyHandle = UniqueHandle<HKEY, RegCloseKey>;
using KernelHandle = UniqueHandle<HANDLE, CloseHandle>;
using SearchHandle = UniqueHandle<HANDLE, FindClose>;
using FontHandle = UniqueHandle<HFONT, DeleteObject>;
using BrushHandle = UniqueHandle<HBRUSH, DeleteObject>;
using BitmapHandle = UniqueHandle<HBITMAP, DeleteObject>;
using DeviceHandle = UniqueHandle<HDC, DeleteDC>;

}  // namespace windows

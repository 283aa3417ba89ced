#pragma once

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// A font or bitmap that a device draws with, or on, as long as this lives.
class SelectedObject {
 public:
  SelectedObject(HDC device, HGDIOBJ object) : device_(device), before_(SelectObject(device, object)) {}
  ~SelectedObject() { SelectObject(device_, before_); }
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;

 private:
  HDC device_;
  HGDIOBJ before_;
};

}  // namespace windows

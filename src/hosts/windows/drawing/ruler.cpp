#include "hosts/windows/drawing/ruler.h"

namespace windows {

int Ruler::widthOf(const std::wstring& text) const {
  SIZE size{};
  GetTextExtentPoint32W(device_.get(), text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

int Ruler::heightIn(const std::wstring& text, int width, UINT format) const {
  RECT box{0, 0, width, 0};
  DrawTextW(device_.get(), text.c_str(), static_cast<int>(text.size()), &box, format | DT_CALCRECT);
  return box.bottom;
}

}  // namespace windows

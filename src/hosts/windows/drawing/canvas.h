#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "hosts/windows/drawing/gdiplus.h"
#include "hosts/windows/drawing/scale.h"
#include "hosts/windows/drawing/selected_object.h"
#include "hosts/windows/win32/handles.h"

namespace windows {

// A device to draw on, at a window's scale.
class Canvas {
 public:
  Canvas(HDC device, const Scale& scale) : device_(device), scale_(scale), graphics_(device) {
    graphics_.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics_.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    graphics_.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  }

  [[nodiscard]] const Scale& scale() const { return scale_; }
  // For measuring texts.
  [[nodiscard]] HDC device() const { return device_; }

  void fill(const RECT& rect, forms::Color color);
  // With round corners of a usual radius, and a line of one pixel around it where a colour is given; strength of 255.
  void fillRound(const RECT& rect, double radius, forms::Color color, std::optional<forms::Color> border = {},
                 int strength = 255);
  void drawRound(const RECT& rect, double radius, forms::Color color, double thickness);
  // A picture in the middle of the rectangle, as large as its proportions allow. Nothing when there is none.
  void picture(const std::string& name, const RECT& rect, double strength = 1);
  // One line or more of text; `format` as DrawText takes it.
  void text(const std::wstring& text, RECT rect, HFONT font, forms::Color color, UINT format);
  // The lines of a check mark, an arrow and the like, from point to point; usual thickness.
  void line(const std::vector<POINT>& points, forms::Color color, double thickness);

 private:
  HDC device_;
  Scale scale_;
  Gdiplus::Graphics graphics_;
};

// Draws into memory first, so that nothing flickers.
template <class Draw>
void drawBuffered(HDC target, const RECT& rect, const Scale& scale, Draw draw) {
  const DeviceHandle memory(CreateCompatibleDC(target));
  const BitmapHandle bitmap(CreateCompatibleBitmap(target, widthOf(rect), heightOf(rect)));
  const SelectedObject selected(memory.get(), bitmap.get());
  SetViewportOrgEx(memory.get(), -rect.left, -rect.top, nullptr);
  {
    Canvas canvas(memory.get(), scale);
    draw(canvas);
  }
  SetViewportOrgEx(memory.get(), 0, 0, nullptr);
  BitBlt(target, rect.left, rect.top, widthOf(rect), heightOf(rect), memory.get(), 0, 0, SRCCOPY);
}

}  // namespace windows

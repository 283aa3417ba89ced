#include "hosts/windows/drawing/text_fit.h"

#include "hosts/windows/drawing/fonts.h"

namespace windows {
namespace {

constexpr double kSmallestPoints = 6.5;
constexpr double kStep = 0.5;

UINT formatOf(Across across) {
  switch (across) {
    case Across::centre:
      return DT_CENTER;
    case Across::right:
      return DT_RIGHT;
    case Across::left:
      break;
  }
  return DT_LEFT;
}

SIZE measured(HDC device, const std::wstring& text, HFONT font, int width, UINT format) {
  const SelectedObject selected(device, font);
  RECT box{0, 0, width, 0};
  DrawTextW(device, text.c_str(), static_cast<int>(text.size()), &box, format | DT_CALCRECT);
  return {widthOf(box), heightOf(box)};
}

}  // namespace

void drawFitted(Canvas& canvas, const std::wstring& text, const RECT& rect, const forms::FontSpec& font,
                forms::Color color, Across across) {
  const UINT format = formatOf(across) | DT_NOPREFIX | DT_WORDBREAK;
  forms::FontSpec spec = font;
  FontHandle handle = makeFont(spec, canvas.scale());
  SIZE size = measured(canvas.device(), text, handle.get(), widthOf(rect), format);
  const auto fits = [&] { return size.cx <= widthOf(rect) && size.cy <= heightOf(rect); };
  while (!fits() && spec.points > kSmallestPoints) {
    spec.points -= kStep;
    handle = makeFont(spec, canvas.scale());
    size = measured(canvas.device(), text, handle.get(), widthOf(rect), format);
  }
  if (!fits()) {
    const UINT cut = formatOf(across) | DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;
    return canvas.text(text, rect, handle.get(), color, cut);
  }
  RECT box = rect;
  box.top += (heightOf(rect) - size.cy) / 2;
  canvas.text(text, box, handle.get(), color, format);
}

}  // namespace windows

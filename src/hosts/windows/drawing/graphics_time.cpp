#include "hosts/windows/drawing/graphics_time.h"

#include "hosts/windows/drawing/artwork.h"
#include "hosts/windows/drawing/gdiplus.h"

namespace windows {

GraphicsTime::GraphicsTime() {
  const Gdiplus::GdiplusStartupInput input;
  ULONG_PTR token = 0;
  Gdiplus::GdiplusStartup(&token, &input, nullptr);
  token_ = token;
}

GraphicsTime::~GraphicsTime() {
  artwork::forget();
  Gdiplus::GdiplusShutdown(token_);
}

}  // namespace windows

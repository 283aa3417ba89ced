#include "hosts/windows/views/picture_box_view.h"

#include "hosts/screen/palette.h"
#include "hosts/windows/views/pane_class.h"

namespace windows {

PictureBoxView::PictureBoxView(forms::PictureBox& box, ViewContext& context, HWND parent)
    : ControlView(box, context, parent) {
  create(paneClass(), WS_CLIPCHILDREN);
}

void PictureBoxView::paint(Canvas& canvas, UINT) const { canvas.fill(clientRect(), screen::palette::kCard); }

std::optional<LRESULT> PictureBoxView::handle(UINT message, WPARAM wide, LPARAM large) {
  if (message == WM_PAINT) return paintWindow();
  if (message == WM_ERASEBKGND) return TRUE;
  return ControlView::handle(message, wide, large);
}

}  // namespace windows

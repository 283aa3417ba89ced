#include "hosts/windows/views/pointed_view.h"

namespace windows {

void PointedView::createButton() { create(WC_BUTTONW, BS_OWNERDRAW | WS_TABSTOP); }

void PointedView::commanded(WORD code) {
  if (code == BN_CLICKED) click();
}

void PointedView::setPointedAt(bool pointedAt) {
  if (pointedAt == pointedAt_) return;
  pointedAt_ = pointedAt;
  repaint();
  if (!pointedAt) return;
  TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, window(), 0};
  TrackMouseEvent(&leaving);
}

std::optional<LRESULT> PointedView::handle(UINT message, WPARAM wide, LPARAM large) {
  switch (message) {
    case WM_MOUSEMOVE:
      setPointedAt(true);
      break;
    case WM_MOUSELEAVE:
      setPointedAt(false);
      break;
    case WM_KEYDOWN:
      if (wide != VK_RETURN) break;
      click();
      return 0;
    case WM_ERASEBKGND:
      return TRUE;
    case WM_SETCURSOR:
      if (context().calls.isBusy() || LOWORD(large) != HTCLIENT) break;
      SetCursor(LoadCursorW(nullptr, IDC_HAND));
      return TRUE;
    default:
      break;
  }
  return ControlView::handle(message, wide, large);
}

}  // namespace windows

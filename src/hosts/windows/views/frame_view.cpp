#include "hosts/windows/views/frame_view.h"

#include "hosts/screen/palette.h"
#include "hosts/screen/pop_up_frames.h"
#include "hosts/windows/views/measures.h"
#include "hosts/windows/views/pane_class.h"
#include "hosts/windows/win32/wide_text.h"

namespace windows {

using namespace screen::palette;

FrameView::Look FrameView::lookOf(const forms::Frame& frame) {
  if (frame.container() != nullptr) return Look::group;
  return screen::isPopUp(frame) ? Look::popUp : Look::sheet;
}

FrameView::FrameView(forms::Frame& frame, ViewContext& context, HWND parent)
    : ControlView(frame, context, parent), frame_(frame), look_(lookOf(frame)) {
  create(paneClass(), WS_CLIPCHILDREN, WS_EX_CONTROLPARENT);
}

forms::Color FrameView::surface() const { return look_ == Look::popUp ? kCard : behind(); }

void FrameView::paint(Canvas& canvas, UINT) const {
  constexpr double kInset = 6;
  canvas.fill(clientRect(), look_ == Look::sheet ? kCard : behind());
  if (look_ == Look::popUp) canvas.fillRound(clientRect(), kRadius, kCard, kBorder);
  RECT inside = clientRect();
  InflateRect(&inside, -scale().of(kInset), 0);
  canvas.text(wide(frame_.caption()), inside, font(), kMuted, DT_LEFT | DT_TOP | DT_SINGLELINE | DT_NOPREFIX);
}

std::optional<LRESULT> FrameView::handle(UINT message, WPARAM wideWord, LPARAM large) {
  if (message == WM_PAINT) return paintWindow();
  if (message == WM_ERASEBKGND) return TRUE;
  return ControlView::handle(message, wideWord, large);
}

}  // namespace windows

#include "hosts/windows/views/progress_bar_view.h"

#include <algorithm>
#include <cmath>

#include "hosts/screen/palette.h"

namespace windows {

using namespace screen::palette;

ProgressBarView::ProgressBarView(forms::ProgressBar& bar, ViewContext& context, HWND parent)
    : ControlView(bar, context, parent), bar_(bar) {
  constexpr int kFull = 100;
  create(PROGRESS_CLASSW, PBS_SMOOTH);
  SendMessageW(window(), PBM_SETRANGE32, 0, kFull);
}

void ProgressBarView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property != forms::Property::Value) return;
  SendMessageW(window(), PBM_SETPOS, static_cast<WPARAM>(std::lround(bar_.value())), 0);
  repaint();
}

void ProgressBarView::paint(Canvas& canvas, UINT) const {
  constexpr double kInset = 3;
  constexpr double kFull = 100;
  const RECT box = clientRect();
  canvas.fill(box, kCard);
  RECT groove = box;
  InflateRect(&groove, -scale().of(kInset), -scale().of(kInset));
  canvas.fillRound(groove, heightOf(groove), kNavyTint);
  const double share = bar_.value() / kFull;
  if (share <= 0) return;
  groove.right = groove.left + std::max(heightOf(groove), static_cast<int>(std::lround(widthOf(groove) * share)));
  canvas.fillRound(groove, heightOf(groove), kAccent);
}

std::optional<LRESULT> ProgressBarView::handle(UINT message, WPARAM wide, LPARAM large) {
  if (message == WM_PAINT) return paintWindow();
  if (message == WM_ERASEBKGND) return TRUE;
  return ControlView::handle(message, wide, large);
}

}  // namespace windows

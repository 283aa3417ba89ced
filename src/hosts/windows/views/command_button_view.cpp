#include "hosts/windows/views/command_button_view.h"

#include "hosts/screen/palette.h"
#include "hosts/windows/drawing/text_fit.h"
#include "hosts/windows/views/measures.h"
#include "hosts/windows/win32/wide_text.h"

namespace windows {

using namespace screen::palette;

CommandButtonView::CommandButtonView(forms::CommandButton& button, ViewContext& context, HWND parent)
    : PointedView(button, context, parent), button_(button) {
  createButton();
}

void CommandButtonView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property != forms::Property::Caption) return;
  SetWindowTextW(window(), wide(button_.caption()).c_str());
  repaint();
}

void CommandButtonView::click() {
  forms::CommandButton& button = button_;
  act([&button] { button.userClick(); });
}

void CommandButtonView::paint(Canvas& canvas, UINT state) const {
  const bool enabled = (state & ODS_DISABLED) == 0;
  const bool pressed = (state & ODS_SELECTED) != 0;
  canvas.fill(clientRect(), behind());
  canvas.fillRound(clientRect(), kRadius, !enabled ? kBorder : pressed ? kAccent : isPointedAt() ? kInk : kNavy);
  drawFitted(canvas, wide(button_.caption()), clientRect(), button_.font, enabled ? kCard : kMuted, Across::centre);
  if (hasRing(state)) canvas.drawRound(clientRect(), kRadius, kAccent, kFocusLine);
}

}  // namespace windows

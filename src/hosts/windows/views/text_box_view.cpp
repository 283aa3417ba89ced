#include "hosts/windows/views/text_box_view.h"

#include "hosts/screen/palette.h"
#include "hosts/windows/drawing/text_fit.h"
#include "hosts/windows/views/measures.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/window_text.h"

namespace windows {

using namespace screen::palette;

TextBoxView::TextBoxView(forms::TextBox& box, ViewContext& context, HWND parent)
    : ControlView(box, context, parent), box_(box) {
  create(WC_EDITW, WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
  SendMessageW(window(), EM_SETCUEBANNER, FALSE, reinterpret_cast<LPARAM>(wide(box.accessibleName).c_str()));
}

// Setting the same text again would move the cursor under the user's hands.
void TextBoxView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property != forms::Property::Text || textOf(window()) == box_.text()) return;
  quiet_ = true;
  SetWindowTextW(window(), wide(box_.text()).c_str());
  quiet_ = false;
}

// Also what is typed while the program is at work, which it hears of when it is done; by then it may have written a
// text of its own.
void TextBoxView::commanded(WORD code) {
  if (code != EN_CHANGE || quiet_) return;
  forms::TextBox& box = box_;
  actWhenFree([&box, typedInto = window()] {
    const ControlView* view = of(typedInto);
    if (view != nullptr && &view->control() == &box) box.userEdit(textOf(typedInto));
  });
}

NoticeView::NoticeView(forms::TextBox& box, ViewContext& context, HWND parent)
    : ControlView(box, context, parent), box_(box) {
  create(WC_STATICW, SS_OWNERDRAW);
}

void NoticeView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property != forms::Property::Text) return;
  SetWindowTextW(window(), wide(box_.text()).c_str());
  repaint();
}

void NoticeView::paint(Canvas& canvas, UINT) const {
  constexpr double kTallest = 120;  // a notice higher than this only covers
  constexpr double kInset = 8;
  constexpr double kStripe = 4;
  const RECT box = clientRect();
  canvas.fill(box, kCard);
  if (heightOf(box) > scale().of(kTallest)) return;
  canvas.fillRound(box, kRadius, kCard, kBorder);
  canvas.fill({0, 0, scale().of(kStripe), box.bottom}, kAccent);
  RECT inside = box;
  InflateRect(&inside, -scale().of(kInset), 0);
  drawFitted(canvas, wide(box_.text()), inside, box_.font, kNavy, Across::centre);
}

std::unique_ptr<ControlView> makeTextBoxView(forms::TextBox& box, ViewContext& context, HWND parent) {
  if (box.locked) return std::make_unique<NoticeView>(box, context, parent);
  return std::make_unique<TextBoxView>(box, context, parent);
}

}  // namespace windows

#include "hosts/windows/views/tab_control_view.h"

#include "hosts/screen/palette.h"
#include "hosts/windows/drawing/fonts.h"
#include "hosts/windows/views/measures.h"

namespace windows {
namespace {

using namespace screen::palette;

constexpr UINT kCentred = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;

RECT insetBy(RECT rect, int left, int top, int right, int bottom) {
  return {rect.left + left, rect.top + top, rect.right - right, rect.bottom - bottom};
}

}  // namespace

TabControlView::TabControlView(forms::TabControl& tabs, ViewContext& context, HWND parent)
    : TabRowView(tabs, context, parent), tabs_(tabs) {
  createRow(tabs.captions);
}

void TabControlView::rescale() {
  SendMessageW(window(), TCM_SETPADDING, 0, MAKELPARAM(scale().of(kHeadingPadding), 0));
  SendMessageW(window(), TCM_SETITEMSIZE, 0, MAKELPARAM(0, scale().of(kHeading)));
  TabRowView::rescale();
}

// The page reaches a little below its control, so that what fills it has a margin there as it has at its sides.
RECT TabControlView::place() const {
  RECT rect = TabRowView::place();
  rect.bottom += scale().of(kSkirt);
  return rect;
}

void TabControlView::sync(forms::Property property) {
  TabRowView::sync(property);
  if (property != forms::Property::Tab) return;
  shownTab_ = tabs_.tab();
  showChosen(shownTab_);
}

forms::Color TabControlView::surface() const { return kCard; }

void TabControlView::picked(int index, bool again) {
  if (again) return;
  forms::TabControl& tabs = tabs_;
  act([&tabs, index] { tabs.userPick(index); });
}

void TabControlView::paint(Canvas& canvas, UINT) const {
  canvas.fill(clientRect(), behind());
  RECT page = clientRect();
  page.top = scale().of(kHeading) - 1;
  canvas.fillRound(page, kRadius, kCard, kBorder);
  for (int i = 0; i < count(); ++i) paintHeading(canvas, i);
}

void TabControlView::paintHeading(Canvas& canvas, int index) const {
  RECT box = headingRect(index);
  box.top = 0;
  box.bottom = scale().of(kHeading);
  const bool isChosen = index == chosen();
  const int small = scale().of(4);
  if (isChosen) {
    canvas.fillRound(insetBy(box, 0, 0, 0, -scale().of(kRadius)), kRadius, kCard);
    const int inset = scale().of(kHeadingPadding) - small;
    constexpr double kMark = 3;
    canvas.fillRound({box.left + inset, box.top, box.right - inset, box.top + scale().of(kMark)}, kMark / 2, kAccent);
  } else if (isLit(index)) {
    canvas.fillRound(insetBy(box, small / 2, small, small / 2, small), 4, kNavyTint);
  }
  const FontHandle plain = makeFont(tabs_.font, scale());
  canvas.text(caption(index), box, isChosen ? font() : plain.get(), isChosen || isLit(index) ? kNavy : kMuted,
              kCentred);
  if (isChosen && hasRing()) canvas.drawRound(insetBy(box, 1, 1, 1, 1), 4, kAccent, kFocusLine);
}

TabStripView::TabStripView(forms::TabStrip& strip, ViewContext& context, HWND parent)
    : TabRowView(strip, context, parent), strip_(strip) {
  createRow(strip.captions);
  SetWindowLongPtrW(window(), GWL_STYLE, GetWindowLongPtrW(window(), GWL_STYLE) | TCS_FIXEDWIDTH);
}

// The headings share the width of the row.
void TabStripView::sync(forms::Property property) {
  TabRowView::sync(property);
  constexpr int kMargin = 2;  // of the native row, left of its first heading
  const RECT box = clientRect();
  if (property == forms::Property::SelectedItem) return showChosen(strip_.selectedIndex());
  if (count() == 0) return;
  SendMessageW(window(), TCM_SETITEMSIZE, 0,
               MAKELPARAM((widthOf(box) - 2 * kMargin) / count(), heightOf(box) - kMargin));
}

void TabStripView::picked(int index, bool) {
  forms::TabStrip& strip = strip_;
  act([&strip, index] { strip.userPick(index); });
}

void TabStripView::paint(Canvas& canvas, UINT) const {
  const int small = scale().of(3);
  const RECT box = clientRect();
  const FontHandle plain = makeFont(strip_.font, scale());
  canvas.fill(box, behind());
  canvas.fillRound(insetBy(box, 0, 0, 0, small - 1), kRadius, kCard, kBorder);
  for (int i = 0; i < count(); ++i) {
    const LONG left = box.right * i / count();
    const LONG right = box.right * (i + 1) / count();
    const RECT heading = insetBy({left, 0, right, box.bottom}, small, small, small, 2 * small - 1);
    const bool isChosen = i == chosen();
    if (isChosen || isLit(i)) canvas.fillRound(heading, 4, isChosen ? kNavy : kNavyTint);
    canvas.text(caption(i), heading, isChosen ? font() : plain.get(), isChosen ? kCard : kInk, kCentred);
    if (isChosen && hasRing()) canvas.drawRound(heading, 4, kAccent, kFocusLine);
  }
}

}  // namespace windows

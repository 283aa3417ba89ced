#include "hosts/windows/views/tab_row.h"

#include "hosts/windows/win32/wide_text.h"

namespace windows {

void TabRowView::createRow(const std::vector<std::string>& captions) {
  create(WC_TABCONTROLW, WS_TABSTOP | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT);
  int index = 0;
  for (const std::string& text : captions) {
    std::wstring& written = captions_.emplace_back(wide(text));
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = written.data();
    SendMessageW(window(), TCM_INSERTITEMW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&item));
  }
}

forms::FontSpec TabRowView::fontSpec() const {
  forms::FontSpec spec = ControlView::fontSpec();
  spec.bold = true;
  return spec;
}

int TabRowView::chosen() const { return static_cast<int>(SendMessageW(window(), TCM_GETCURSEL, 0, 0)); }

void TabRowView::showChosen(int index) {
  if (chosen() != index) SendMessageW(window(), TCM_SETCURSEL, static_cast<WPARAM>(index), 0);
  repaint();
}

RECT TabRowView::headingRect(int index) const {
  RECT rect{};
  SendMessageW(window(), TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
  return rect;
}

bool TabRowView::hasRing() const { return context().keyboardUsed && GetFocus() == window(); }

int TabRowView::headingAt(LPARAM point) const {
  TCHITTESTINFO hit{};
  hit.pt = {GET_X_LPARAM(point), GET_Y_LPARAM(point)};
  return static_cast<int>(SendMessageW(window(), TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
}

void TabRowView::light(int index) {
  if (index == lit_) return;
  lit_ = index;
  repaint();
}

// The chosen heading is painted before the program hears of it, since what it does may take a while.
std::optional<LRESULT> TabRowView::notified(NMHDR& notice) {
  if (notice.code != TCN_SELCHANGE) return std::nullopt;
  repaint();
  UpdateWindow(window());
  picked(chosen(), false);
  return 0;
}

void TabRowView::turn(int steps) {
  if (count() > 0)
    SendMessageW(window(), TCM_SETCURFOCUS, static_cast<WPARAM>((chosen() + steps + count()) % count()), 0);
}

std::optional<LRESULT> TabRowView::handle(UINT message, WPARAM wideWord, LPARAM large) {
  switch (message) {
    case WM_PAINT:
      return paintWindow();
    case WM_ERASEBKGND:
      return TRUE;
    case WM_MOUSEMOVE: {
      light(headingAt(large));
      TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, window(), 0};
      TrackMouseEvent(&leaving);
      break;
    }
    case WM_MOUSELEAVE:
      light(-1);
      break;
    case WM_LBUTTONDOWN:
      if (const int index = headingAt(large); index >= 0 && index == chosen()) picked(index, true);
      break;
    case WM_KEYDOWN:
      if (wideWord != VK_SPACE && wideWord != VK_RETURN) break;
      picked(chosen(), true);
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      repaint();
      break;
    default:
      break;
  }
  return ControlView::handle(message, wideWord, large);
}

}  // namespace windows

#include "hosts/windows/views/list_box_view.h"

#include "hosts/windows/win32/wide_text.h"

namespace windows {

ListBoxView::ListBoxView(forms::ListBox& list, ViewContext& context, HWND parent)
    : ControlView(list, context, parent), list_(list) {
  create(WC_LISTBOXW, LBS_NOTIFY | LBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE);
  for (const std::string& item : list.items()) itemAdded(item);
}

void ListBoxView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property == forms::Property::ListIndex) {
    SendMessageW(window(), LB_SETCURSEL, static_cast<WPARAM>(list_.listIndex()), 0);
  }
}

void ListBoxView::itemAdded(const std::string& item) {
  SendMessageW(window(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(item).c_str()));
}

void ListBoxView::cleared() { SendMessageW(window(), LB_RESETCONTENT, 0, 0); }

void ListBoxView::commanded(WORD code) {
  if (code == LBN_SELCHANGE) pick();
}

void ListBoxView::pick() {
  told_ = true;
  const auto index = static_cast<int>(SendMessageW(window(), LB_GETCURSEL, 0, 0));
  forms::ListBox& list = list_;
  act([&list, index] {
    if (index >= 0 && index < static_cast<int>(list.items().size())) list.userPick(index);
  });
}

std::optional<LRESULT> ListBoxView::handle(UINT message, WPARAM wideWord, LPARAM large) {
  if (message == WM_LBUTTONDOWN) told_ = false;
  if (message == WM_LBUTTONUP && !told_) {
    const LRESULT answer = passOn(message, wideWord, large);
    const LRESULT row = SendMessageW(window(), LB_ITEMFROMPOINT, 0, large);
    const bool isRow = HIWORD(row) == 0;
    if (!told_ && isRow && LOWORD(row) == SendMessageW(window(), LB_GETCURSEL, 0, 0)) pick();
    return answer;
  }
  return ControlView::handle(message, wideWord, large);
}

}  // namespace windows

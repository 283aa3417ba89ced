#include "hosts/windows/views/combo_view.h"

#include "hosts/windows/drawing/ruler.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/window_text.h"

namespace windows {
namespace {

constexpr int kMostRows = 15;  // of an open list; the rest is scrolled to
constexpr UINT kPick = WM_APP;
constexpr UINT kEdited = WM_APP + 1;

COMBOBOXINFO partsOf(HWND combo) {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(combo, &parts);
  return parts;
}

}  // namespace

ComboView::ComboView(forms::ItemList& list, ViewContext& context, HWND parent)
    : ControlView(list, context, parent), list_(list), editable_(dynamic_cast<forms::EditableCombo*>(&list)) {
  const DWORD kind = editable_ == nullptr ? CBS_DROPDOWNLIST : CBS_DROPDOWN | CBS_AUTOHSCROLL;
  create(WC_COMBOBOXW, kind | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP);
  SendMessageW(window(), CB_SETMINVISIBLE, kMostRows, 0);
  SendMessageW(window(), CB_SETCUEBANNER, 0, reinterpret_cast<LPARAM>(wide(list.accessibleName).c_str()));
  for (const std::string& item : list.items()) itemAdded(item);
}

void ComboView::rescale() {
  ControlView::rescale();
  fitHeight();
  SendMessageW(window(), CB_SETDROPPEDWIDTH, 0, 0);
  for (const std::string& item : list_.items()) widenFor(wide(item));
}

// A combo is as high as its text asks for; this gives it the height of its control.
void ComboView::fitHeight() {
  const RECT wanted = place();
  const auto itemHeight = [this] { return static_cast<int>(SendMessageW(window(), CB_GETITEMHEIGHT, WPARAM(-1), 0)); };
  RECT now{};
  GetWindowRect(window(), &now);
  const int extra = heightOf(now) - itemHeight();
  const int item = heightOf(wanted) - extra;
  if (item > 0) SendMessageW(window(), CB_SETITEMHEIGHT, WPARAM(-1), item);
}

void ComboView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property == forms::Property::ListIndex || property == forms::Property::Text) showChoice();
}

void ComboView::itemAdded(const std::string& item) {
  const std::wstring text = wide(item);
  SendMessageW(window(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
  widenFor(text);
  showChoice();
}

// The list opens as wide as its longest item.
void ComboView::widenFor(const std::wstring& text) {
  constexpr double kMargins = 12;
  const int needed = Ruler(window(), font()).widthOf(text) + scale().of(kMargins) + GetSystemMetrics(SM_CXVSCROLL);
  if (needed > SendMessageW(window(), CB_GETDROPPEDWIDTH, 0, 0)) {
    SendMessageW(window(), CB_SETDROPPEDWIDTH, static_cast<WPARAM>(needed), 0);
  }
}

void ComboView::cleared() {
  SendMessageW(window(), CB_RESETCONTENT, 0, 0);
  SendMessageW(window(), CB_SETDROPPEDWIDTH, 0, 0);
  showChoice();
}

int ComboView::selection() const { return static_cast<int>(SendMessageW(window(), CB_GETCURSEL, 0, 0)); }

bool ComboView::isOpen() const { return SendMessageW(window(), CB_GETDROPPEDSTATE, 0, 0) != FALSE; }

// What stands there already is left alone, and with it the cursor in it.
void ComboView::showChoice() {
  if (picking_ || isOpen()) return;
  if (selection() != list_.listIndex()) SendMessageW(window(), CB_SETCURSEL, static_cast<WPARAM>(list_.listIndex()), 0);
  if (editable_ != nullptr && textOf(window()) != list_.text()) {
    SetWindowTextW(window(), wide(list_.text()).c_str());
    SendMessageW(window(), CB_SETEDITSEL, 0, MAKELPARAM(-1, 0));
  }
}

void ComboView::commanded(WORD code) {
  switch (code) {
    case CBN_SELCHANGE:
      if (!isOpen()) pickSoon();
      break;
    case CBN_SELENDOK:
      if (selection() != list_.listIndex() || isChosenAgain()) pickSoon();
      break;
    case CBN_EDITCHANGE:
      PostMessageW(window(), kEdited, 0, 0);
      break;
    case CBN_CLOSEUP:
      PostMessageW(window(), kEdited, TRUE, 0);  // a list that was left shows the choice that stands
      break;
    default:
      break;
  }
}

// A list is also closed by clicking beside it; that chooses nothing.
bool ComboView::isChosenAgain() const {
  POINT pointer{};
  GetCursorPos(&pointer);
  return GetKeyState(VK_RETURN) < 0 || WindowFromPoint(pointer) == partsOf(window()).hwndList;
}

// Told when the list has closed and the combo is done.
void ComboView::pickSoon() {
  if (picking_) return;
  picking_ = true;
  PostMessageW(window(), kPick, 0, 0);
}

void ComboView::pick() {
  const int index = selection();
  picking_ = false;
  UpdateWindow(window());  // the choice is seen before the program is at work with it
  if (index < 0 || index >= static_cast<int>(list_.items().size())) return;
  forms::ItemList& list = list_;
  act([&list, index] {
    if (index < static_cast<int>(list.items().size())) list.userPick(index);
  });
}

void ComboView::edited() {
  if (editable_ == nullptr) return;
  forms::EditableCombo& combo = *editable_;
  act([&combo, text = textOf(window())] { combo.userEdit(text); });
}

std::optional<LRESULT> ComboView::handle(UINT message, WPARAM wideWord, LPARAM large) {
  switch (message) {
    case kPick:
      pick();
      return 0;
    case kEdited:
      wideWord == FALSE ? edited() : showChoice();
      return 0;
    default:
      return ControlView::handle(message, wideWord, large);
  }
}

}  // namespace windows

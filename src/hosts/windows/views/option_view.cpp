#include "hosts/windows/views/option_view.h"

#include <algorithm>
#include <vector>

#include "hosts/windows/win32/wide_text.h"

namespace windows {

OptionView::OptionView(forms::OptionButton& option, ViewContext& context, HWND parent)
    : ControlView(option, context, parent), option_(option) {
  create(WC_BUTTONW, BS_RADIOBUTTON | WS_TABSTOP);
  SendMessageW(window(), BM_SETDONTCLICK, TRUE, 0);  // the keyboard may rest on it without choosing it
}

void OptionView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property == forms::Property::Caption) SetWindowTextW(window(), wide(option_.caption()).c_str());
  if (property == forms::Property::Value) {
    SendMessageW(window(), BM_SETCHECK, option_.value() ? BST_CHECKED : BST_UNCHECKED, 0);
  }
}

void OptionView::commanded(WORD code) {
  if (code != BN_CLICKED) return;
  forms::OptionButton& option = option_;
  act([&option] { option.userRelease(); });
}

void OptionView::chooseNeighbour(int step) const {
  std::vector<OptionView*> group;
  for (const forms::Control* each : option_.form().controls()) {
    if (each->container() != option_.container()) continue;
    for (HWND child = GetWindow(parent(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
      auto* view = dynamic_cast<OptionView*>(of(child));
      const bool isUsable = view != nullptr && &view->control() == each && each->enabled() && each->isSeen();
      if (isUsable) group.push_back(view);
    }
  }
  const auto here = std::ranges::find(group, this) - group.begin();
  const auto count = static_cast<std::ptrdiff_t>(group.size());
  if (count < 2) return;
  OptionView* next = group[static_cast<std::size_t>((here + step + count) % count)];
  SetFocus(next->window());
  next->commanded(BN_CLICKED);
}

std::optional<LRESULT> OptionView::handle(UINT message, WPARAM wideWord, LPARAM large) {
  if (message == WM_KEYDOWN) {
    switch (wideWord) {
      case VK_DOWN:
      case VK_RIGHT:
        chooseNeighbour(1);
        return 0;
      case VK_UP:
      case VK_LEFT:
        chooseNeighbour(-1);
        return 0;
      default:
        break;
    }
  }
  return ControlView::handle(message, wideWord, large);
}

}  // namespace windows

#include "hosts/windows/keyboard_order.h"

#include <algorithm>

#include "hosts/windows/pop_up_watch.h"
#include "hosts/windows/win32/window_class.h"

namespace windows {
namespace {

RECT rectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

bool isOption(HWND window) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
  return isOfClass(window, WC_BUTTONW) && (style & BS_TYPEMASK) == BS_RADIOBUTTON;
}

bool isChosen(HWND option) { return SendMessageW(option, BM_GETCHECK, 0, 0) == BST_CHECKED; }

bool takesKeyboard(HWND window) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
  constexpr LONG_PTR kWanted = WS_VISIBLE | WS_TABSTOP;
  return (style & kWanted) == kWanted && (style & WS_DISABLED) == 0;
}

// The children of a window as they are read: those whose tops differ by less than half of the upper one's height stand
// in one row. A pop-up menu follows its label.
std::vector<HWND> childrenInOrder(HWND parent) {
  std::vector<HWND> children;
  std::vector<HWND> popUps;
  for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    if ((GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE) == 0) continue;
    (labelOfPopUp(child) == nullptr ? children : popUps).push_back(child);
  }
  std::ranges::stable_sort(children, {}, [](HWND child) { return rectOf(child).top; });
  for (auto row = children.begin(); row != children.end();) {
    const RECT first = rectOf(*row);
    const LONG middle = first.top + (first.bottom - first.top) / 2;
    const auto end = std::find_if(row, children.end(), [middle](HWND child) { return rectOf(child).top > middle; });
    std::ranges::stable_sort(row, end, {}, [](HWND child) { return rectOf(child).left; });
    row = end;
  }
  for (const HWND popUp : popUps) {
    const auto label = std::ranges::find(children, labelOfPopUp(popUp));
    children.insert(label == children.end() ? label : label + 1, popUp);
  }
  return children;
}

void addWithin(HWND parent, std::vector<HWND>& order) {
  const std::vector<HWND> children = childrenInOrder(parent);
  const auto chosen = std::ranges::find_if(children, [](HWND child) { return isOption(child) && isChosen(child); });
  bool hasOption = chosen != children.end();
  for (const HWND child : children) {
    const bool isOther = isOption(child) && hasOption && (chosen == children.end() || *chosen != child);
    if (takesKeyboard(child) && !isOther) {
      order.push_back(child);
      hasOption = hasOption || isOption(child);
    }
    if ((GetWindowLongPtrW(child, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0) addWithin(child, order);
  }
}

// The place of `from` in the order: its own, that of the option which stands for its group, or that of the innermost
// window around it.
std::vector<HWND>::const_iterator placeOf(HWND from, const std::vector<HWND>& order, HWND form) {
  for (HWND at = from; at != nullptr && at != form; at = GetParent(at)) {
    const auto isHere = [at](HWND each) {
      return each == at || (isOption(at) && isOption(each) && GetParent(each) == GetParent(at));
    };
    const auto here = std::ranges::find_if(order, isHere);
    if (here != order.end()) return here;
  }
  return order.end();
}

}  // namespace

std::vector<HWND> keyboardOrder(HWND form) {
  std::vector<HWND> order;
  addWithin(form, order);
  return order;
}

HWND nextForKeyboard(HWND form, HWND from, bool next) {
  const std::vector<HWND> order = keyboardOrder(form);
  if (order.empty()) return nullptr;
  const auto here = placeOf(from, order, form);
  if (here == order.end()) return next ? order.front() : order.back();
  const auto index = static_cast<std::size_t>(here - order.begin());
  return order[(index + (next ? 1 : order.size() - 1)) % order.size()];
}

}  // namespace windows

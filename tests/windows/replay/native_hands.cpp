#include "replay/native_hands.h"

#include <cmath>

#include "forms/timer.h"
#include "hosts/headless/model_hands.h"
#include "hosts/headless/script_line.h"
#include "hosts/windows/win32/wide_text.h"

namespace wintest {
namespace {

constexpr double kTwipsPerPixel = 15;

LPARAM packed(LONG x, LONG y) { return MAKELPARAM(x, y); }

LPARAM middleOf(const RECT& rect) { return packed((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2); }

LPARAM middleOf(HWND window) {
  RECT room{};
  GetClientRect(window, &room);
  return middleOf(room);
}

void clickAt(HWND window, LPARAM point) {
  SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, point);
  SendMessageW(window, WM_LBUTTONUP, 0, point);
}

bool isOfClass(HWND window, std::wstring_view name) {
  std::wstring actual(64, L'\0');
  actual.resize(static_cast<std::size_t>(GetClassNameW(window, actual.data(), 64)));
  return CompareStringOrdinal(actual.c_str(), -1, name.data(), static_cast<int>(name.size()), TRUE) == CSTR_EQUAL;
}

// A list's drop-down lies over other windows: the item is chosen in the closed box, as by the arrow keys.
void pickFromCombo(HWND combo, int index) {
  SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  SendMessageW(GetParent(combo), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(combo));
}

void pickFromList(HWND list, int index) {
  SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
  RECT row{};
  SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&row));
  clickAt(list, middleOf(row));
}

void pickTab(HWND tabs, int index) {
  RECT heading{};
  SendMessageW(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&heading));
  clickAt(tabs, middleOf(heading));
}

// Where what is typed arrives: the box itself, or the one in a combo.
HWND keyboardOf(HWND window) {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  const bool isCombo = isOfClass(window, WC_COMBOBOXW) && GetComboBoxInfo(window, &parts) != 0;
  return isCombo && parts.hwndItem != nullptr ? parts.hwndItem : window;
}

// The pointer is where none of the program's windows is, elsewhere than the last time: it has moved.
void movePointerAside() {
  static bool atOnePlace = false;
  atOnePlace = !atOnePlace;
  const int right = GetSystemMetrics(SM_CXSCREEN) - 1;
  SetCursorPos(atOnePlace ? right : right - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
}

}  // namespace

HWND NativeHands::windowOf(const forms::Form& form) const {
  const windows::FormWindow* window = host_.windowOf(form);
  if (window == nullptr) throw headless::ScriptError(form.name() + " has no window");
  return window->handle();
}

HWND NativeHands::windowOf(const forms::Control& control) const {
  if (&control == &control.form()) return windowOf(control.form());
  return host_.handleOf(control);
}

// What is only painted hears of no click.
void NativeHands::click(forms::Control& control) {
  if (!isThere(control)) return;
  const HWND window = windowOf(control);
  if (window != nullptr && IsWindowEnabled(window) != 0) clickAt(window, middleOf(window));
  settle_();
}

void NativeHands::pick(forms::Control& control, int index) {
  if (!isThere(control)) return;
  const HWND window = windowOf(control);
  if (isOfClass(window, WC_COMBOBOXW)) {
    pickFromCombo(window, index);
  } else if (isOfClass(window, WC_LISTBOXW)) {
    pickFromList(window, index);
  } else if (isOfClass(window, WC_TABCONTROLW)) {
    pickTab(window, index);
  } else {
    headless::cannot(control, "selected from");
  }
  settle_();
}

// Whatever had the keyboard loses it, so that the control gets it anew.
void NativeHands::enter(forms::Control& control) {
  if (!isThere(control)) return;
  SetFocus(nullptr);
  settle_();
  SetFocus(keyboardOf(windowOf(control)));
  settle_();
}

void NativeHands::pointAt(forms::Control& control) {
  if (!isThere(control)) return;
  const HWND window = windowOf(control);
  if (window == nullptr) headless::cannot(control, "pointed at");
  movePointerAside();
  PostMessageW(window, WM_MOUSEMOVE, 0, &control == &control.form() ? packed(1, 1) : middleOf(window));
  settle_();
}

void NativeHands::type(forms::Control& control, const std::string& text) {
  if (!isThere(control)) return;
  const HWND box = keyboardOf(windowOf(control));
  enter(control);
  edit(control, "");
  for (const wchar_t letter : windows::wide(text)) {
    SendMessageW(box, WM_CHAR, letter, 0);
    settle_();
  }
}

void NativeHands::edit(forms::Control& control, const std::string& text) {
  if (!isThere(control)) return;
  const HWND box = keyboardOf(windowOf(control));
  if (!isOfClass(box, WC_EDITW)) headless::cannot(control, "edited");
  SendMessageW(box, EM_SETSEL, 0, -1);
  if (text.empty()) {
    SendMessageW(box, WM_CLEAR, 0, 0);
  } else {
    SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(windows::wide(text).c_str()));
  }
  settle_();
}

void NativeHands::doubleClick(forms::Form& form) {
  const HWND window = windowOf(form);
  SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, middleOf(window));
  settle_();
}

void NativeHands::close(forms::Form& form) {
  PostMessageW(windowOf(form), WM_CLOSE, 0, 0);
  settle_();
}

void NativeHands::resize(forms::Form& form, forms::Twips width, forms::Twips height) {
  const auto pixels = [](forms::Twips twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); };
  SetWindowPos(windowOf(form), nullptr, 0, 0, pixels(width), pixels(height),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  settle_();
}

void NativeHands::minimize(forms::Form& form) {
  SendMessageW(windowOf(form), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  settle_();
}

void NativeHands::restore(forms::Form& form) {
  SendMessageW(windowOf(form), WM_SYSCOMMAND, SC_RESTORE, 0);
  settle_();
}

void NativeHands::tick(forms::Form& form) {
  for (forms::Control* control : form.controls()) {
    const windows::FormWindow* window = host_.windowOf(form);
    if (window == nullptr) break;
    if (dynamic_cast<forms::Timer*>(control) == nullptr) continue;
    SendMessageW(window->handle(), WM_TIMER, reinterpret_cast<WPARAM>(window->viewOf(*control)), 0);
  }
  settle_();
}

}  // namespace wintest

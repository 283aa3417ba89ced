#include "hosts/windows/views/control_view.h"

#include "hosts/screen/palette.h"
#include "hosts/screen/pop_up_frames.h"
#include "hosts/windows/drawing/fonts.h"
#include "hosts/windows/drawing/painting.h"
#include "hosts/windows/views/background.h"
#include "hosts/windows/win32/wide_text.h"

namespace windows {
namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr const wchar_t* kViewProperty = L"VeldoriaView";

}  // namespace

ControlView* ControlView::of(HWND window) {
  if (window == nullptr || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) return nullptr;
  return static_cast<ControlView*>(GetPropW(window, kViewProperty));
}

void ControlView::create(const wchar_t* windowClass, DWORD style, DWORD extendedStyle) {
  window_.reset(CreateWindowExW(extendedStyle, windowClass, L"", style | WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0,
                                parent_, nullptr, GetModuleHandleW(nullptr), nullptr));
  SetPropW(window(), kViewProperty, this);
  SetWindowSubclass(window(), receive, kSubclass, reinterpret_cast<DWORD_PTR>(this));
  SetWindowPos(window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  rescale();
}

void ControlView::rescale() {
  if (window() == nullptr) return;
  FontHandle font = makeFont(fontSpec(), scale());
  SendMessageW(window(), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
  font_ = std::move(font);
  sync(forms::Property::Left);
}

void ControlView::sync(forms::Property property) {
  if (window() == nullptr) return;
  switch (property) {
    case forms::Property::Visible:
      syncVisible();
      break;
    case forms::Property::Enabled:
      EnableWindow(window(), control_.enabled() ? TRUE : FALSE);
      break;
    case forms::Property::Left:
    case forms::Property::Top:
    case forms::Property::Width:
    case forms::Property::Height: {
      const RECT rect = place();
      SetWindowPos(window(), nullptr, rect.left, rect.top, widthOf(rect), heightOf(rect),
                   SWP_NOZORDER | SWP_NOACTIVATE);
      break;
    }
    default:
      break;
  }
}

void ControlView::syncVisible() {
  if (window() == nullptr) return;
  const forms::Control* container = control_.container();
  const bool onPage = container == nullptr || container->showsPage(control_.page());
  const bool shown = (GetWindowLongPtrW(window(), GWL_STYLE) & WS_VISIBLE) != 0;
  if (shown != (control_.visible() && onPage)) ShowWindow(window(), shown ? SW_HIDE : SW_SHOWNA);
}

RECT ControlView::clientRect() const {
  RECT rect{};
  GetClientRect(window(), &rect);
  return rect;
}

forms::Color ControlView::behind() const {
  const ControlView* container = of(parent_);
  return container == nullptr ? formColorBehind(control_) : container->surface();
}

void ControlView::repaint() const {
  if (window() != nullptr) InvalidateRect(window(), nullptr, FALSE);
}

ActionQueue::Action ControlView::whileLoaded(ActionQueue::Action action) const {
  return [&form = control_.form(), action = std::move(action)] {
    if (form.isLoaded()) action();
  };
}

void ControlView::act(ActionQueue::Action action) const { context_.queue.post(whileLoaded(std::move(action))); }

void ControlView::actWhenFree(ActionQueue::Action action) const {
  context_.queue.postWhenFree(whileLoaded(std::move(action)));
}

void ControlView::pointAt() {
  if (!control_.MouseMove.hasHandlers()) return;
  forms::Control& control = control_;
  act([&control] { screen::pointAt(control); });
}

bool ControlView::pointerHasMoved() {
  const DWORD now = GetMessagePos();
  return std::exchange(lastPointer_, now) != now;
}

void ControlView::drawItem(const DRAWITEMSTRUCT& item) {
  drawBuffered(item.hDC, item.rcItem, scale(), [&](Canvas& canvas) { paint(canvas, item.itemState); });
}

LRESULT ControlView::paintWindow() const {
  const Painting painting(window());
  drawBuffered(painting.device(), clientRect(), scale(), [this](Canvas& canvas) { paint(canvas, 0); });
  return 0;
}

std::optional<LRESULT> ControlView::colored(HDC device) {
  const auto color = static_cast<COLORREF>(control_.backColor.value_or(behind()));
  SetBkColor(device, color);
  SetTextColor(device, static_cast<COLORREF>(control_.foreColor.value_or(screen::palette::kInk)));
  background_.reset(CreateSolidBrush(color));
  return reinterpret_cast<LRESULT>(background_.get());
}

std::optional<LRESULT> ControlView::handle(UINT message, WPARAM, LPARAM large) {
  switch (message) {
    case WM_MOUSEMOVE:
      if (pointerHasMoved()) pointAt();
      break;
    case WM_SETFOCUS:
      if (control_.GotFocus.hasHandlers() && !context_.restoresFocus) {
        forms::Control& control = control_;
        actWhenFree([&control] { control.userFocus(); });
      }
      break;
    case WM_SETCURSOR:
      if (showsWaiting(context_, large)) return TRUE;
      break;
    default:
      break;
  }
  return std::nullopt;
}

LRESULT ControlView::passOn(UINT message, WPARAM wide, LPARAM large) const {
  return DefSubclassProc(window(), message, wide, large);
}

LRESULT ControlView::receive(HWND window, UINT message, WPARAM wide, LPARAM large, UINT_PTR id, DWORD_PTR reference) {
  auto* view = reinterpret_cast<ControlView*>(reference);
  if (message == WM_NCDESTROY) {
    // Gone with its parent: nothing is left to destroy.
    if (view->window() == window) static_cast<void>(view->window_.release());
    RemovePropW(window, kViewProperty);
    RemoveWindowSubclass(window, receive, id);
    return DefSubclassProc(window, message, wide, large);
  }
  LRESULT result = 0;
  view->context_.calls.guard([&] {
    auto answer = reflect(message, wide, large);
    if (!answer && view->window() == window) answer = view->handle(message, wide, large);
    result = answer ? *answer : DefSubclassProc(window, message, wide, large);
  });
  return result;
}

bool showsWaiting(const ViewContext& context, LPARAM hit) {
  const bool shows = context.calls.isBusy() && LOWORD(hit) == HTCLIENT;
  if (shows) SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  return shows;
}

std::optional<LRESULT> reflect(UINT message, WPARAM wide, LPARAM large) {
  const auto viewOf = [](HWND window) { return ControlView::of(window); };
  switch (message) {
    case WM_COMMAND:
      if (ControlView* view = viewOf(reinterpret_cast<HWND>(large))) {
        view->commanded(HIWORD(wide));
        return 0;
      }
      break;
    case WM_NOTIFY: {
      auto& notice = *reinterpret_cast<NMHDR*>(large);
      if (ControlView* view = viewOf(notice.hwndFrom)) return view->notified(notice);
      break;
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(large);
      if (ControlView* view = viewOf(item.hwndItem)) {
        view->drawItem(item);
        return TRUE;
      }
      break;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
      if (ControlView* view = viewOf(reinterpret_cast<HWND>(large))) return view->colored(reinterpret_cast<HDC>(wide));
      break;
    default:
      break;
  }
  return std::nullopt;
}

}  // namespace windows

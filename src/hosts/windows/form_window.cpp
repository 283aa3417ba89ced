#include "hosts/windows/form_window.h"

#include <algorithm>
#include <utility>

#include "hosts/screen/palette.h"
#include "hosts/screen/pop_up_frames.h"
#include "hosts/windows/drawing/painting.h"
#include "hosts/windows/form_class.h"
#include "hosts/windows/views/image_view.h"
#include "hosts/windows/views/measures.h"
#include "hosts/windows/views/picture_box_view.h"
#include "hosts/windows/views/timer_view.h"
#include "hosts/windows/views/view_factory.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/window_class.h"
#include "hosts/windows/window_placement.h"

namespace windows {
namespace {

constexpr UINT_PTR kPopUpClock = 1;
constexpr UINT kPopUpInterval = 120;  // milliseconds between looks at the pointer
constexpr UINT_PTR kInputClock = 2;
constexpr UINT kInputInterval = 500;  // between looks for the engine while the window takes no input

}  // namespace

FormWindow::FormWindow(forms::Form& form, screen::ProgramCalls& calls, ActionQueue& queue, HWND owner)
    : FormDisplay(form), look_(screen::lookOf(form)), context_{calls, queue} {
  makeWindow(owner);
  context_.form = handle();
  context_.scale = roomOf(handle()).scale;
  // Owned by none, so that it can be in front of any other window.
  toolTips_.reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0,
                                  0, 0, 0, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
  context_.toolTips = toolTips_.get();
  makeViews();
}

// What lies in a control goes before it.
FormWindow::~FormWindow() {
  while (!views_.empty()) views_.pop_back();
  SetWindowLongPtrW(handle(), GWLP_USERDATA, 0);
}

// A palette begins on its owner's monitor, and so with its resolution.
void FormWindow::makeWindow(HWND owner) {
  const FormStyle style = formStyle(look_);
  const RECT place = owner == nullptr ? RECT{} : roomOf(owner).area;
  window_.reset(CreateWindowExW(style.extended, formClass(receive), wide(form_.caption()).c_str(), style.basic,
                                place.left, place.top, 0, 0, look_ == screen::FormLook::palette ? owner : nullptr,
                                nullptr, GetModuleHandleW(nullptr), this));
}

void FormWindow::makeViews() {
  for (forms::Control* control : form_.controls()) {
    HWND parent = handle();
    if (const ControlView* container = control->container() == nullptr ? nullptr : viewOf(*control->container())) {
      parent = container->window();
    }
    auto view = makeView(*control, context_, parent);
    if (view == nullptr) continue;
    view->syncAll();
    viewOf_[control] = view.get();
    views_.push_back(std::move(view));
  }
}

ControlView* FormWindow::viewOf(const forms::Control& control) const {
  const auto found = viewOf_.find(&control);
  return found == viewOf_.end() ? nullptr : found->second;
}

// --- what the model says ---

void FormWindow::syncForm(forms::Property property) {
  switch (property) {
    case forms::Property::Caption:
      SetWindowTextW(handle(), wide(form_.caption()).c_str());
      break;
    case forms::Property::Left:
    case forms::Property::Top:
      if (!placing_) {
        SetWindowPos(handle(), nullptr, context_.scale.pixels(form_.left()), context_.scale.pixels(form_.top()), 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
      }
      break;
    default:
      break;
  }
}

// A palette that is seen already stays where its user has put it.
void FormWindow::show() {
  const bool wasSeen = IsWindowVisible(handle()) != FALSE;
  ShowWindow(handle(), look_ == screen::FormLook::palette ? SW_SHOWNA : SW_SHOW);
  if (look_ == screen::FormLook::palette) {
    if (!wasSeen) keepOnScreen();
  } else {
    SetForegroundWindow(handle());
  }
  UpdateWindow(handle());
}

void FormWindow::hide() { ShowWindow(handle(), SW_HIDE); }

void FormWindow::leave() {
  ShowWindow(handle(), SW_HIDE);
  for (const UINT_PTR clock : {kPopUpClock, kInputClock}) KillTimer(handle(), clock);
  // The help goes with the working window, whose buttons open it; the other windows leave it to its reader.
  if (look_ == screen::FormLook::window) WinHelpW(handle(), nullptr, HELP_QUIT, 0);
  SetWindowTextW(handle(), L"");
  SetWindowLongPtrW(handle(), GWLP_USERDATA, 0);
}

void FormWindow::afterCall() {
  syncChoices();
  if (std::exchange(layoutWritten_, false)) InvalidateRect(handle(), nullptr, FALSE);
}

void FormWindow::controlWritten(const forms::Control& control, forms::Property property) {
  switch (property) {
    case forms::Property::Visible:
      visibilityWritten(control);
      break;
    case forms::Property::Left:
    case forms::Property::Top:
    case forms::Property::Width:
    case forms::Property::Height:
      layoutWritten_ = true;
      break;
    default:
      break;
  }
}

void FormWindow::visibilityWritten(const forms::Control& control) {
  if (!screen::isPopUp(control)) return;
  const ControlView* popUp = viewOf(control);
  if (!control.visible() && popUp != nullptr) leaveToItsLabel(popUp->window());
  if (screen::openPopUps(form_) > 0) {
    SetTimer(handle(), kPopUpClock, kPopUpInterval, nullptr);
  } else {
    KillTimer(handle(), kPopUpClock);
  }
}

// The keyboard does not stay within a menu that closes.
void FormWindow::leaveToItsLabel(HWND popUp) {
  const HWND label = labelOfPopUp(popUp);
  if (IsChild(popUp, lastFocus_) != FALSE) lastFocus_ = label;
  if (IsChild(popUp, GetFocus()) != FALSE) SetFocus(label == nullptr ? handle() : label);
}

void FormWindow::paintNow(const forms::Control& control, forms::Property written) {
  const ControlView* view = viewOf(control);
  if (view == nullptr || view->window() == nullptr || IsWindowVisible(view->window()) == FALSE) return;
  if (written != forms::Property::Value && written != forms::Property::Visible) return;
  RedrawWindow(view->window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void FormWindow::markCurrentTool(const std::string& command) {
  const std::string picture = screen::pictureOfCommand(command);
  for (const auto& view : views_) {
    if (auto* button = dynamic_cast<ToolButtonView*>(view.get())) button->setCurrentPicture(picture);
  }
}

// --- what the user does ---

void FormWindow::act(ActionQueue::Action action) {
  forms::Form& form = form_;
  context_.queue.post([&form, action = std::move(action)] {
    if (form.isLoaded()) action();
  });
}

void FormWindow::close() {
  forms::Form& form = form_;
  context_.queue.postWhenFree([&form] {
    if (form.isLoaded()) form.userClose();
  });
}

void FormWindow::pointAtForm() {
  if (!form_.MouseMove.hasHandlers()) return;
  forms::Form& form = form_;
  act([&form] { form.userMouseMove(); });
}

// The program closes its pop-up frames when the pointer is on the form; to users everything that is not the menu is the
// form, other programs' windows too.
void FormWindow::watchPopUps() {
  if (popUpWatch_.userIsOutside(handle())) pointAtForm();
}

void FormWindow::elapsed(UINT_PTR clock) {
  if (clock == kPopUpClock) return watchPopUps();
  if (clock == kInputClock) return takeInputWithoutEngine();
  for (const auto& view : views_) {
    const auto* timer = dynamic_cast<const TimerView*>(view.get());
    if (timer != nullptr && timer->elapsed(clock)) return;
  }
}

// Outside calls only the engine and the pages disable the window, for boxes of their own. Where its map is gone, so are
// the engine and its box.
void FormWindow::takeInputWithoutEngine() {
  const auto isMapPlace = [](const auto& view) { return dynamic_cast<const PictureBoxView*>(view.get()) != nullptr; };
  const auto place = std::ranges::find_if(views_, isMapPlace);
  if (place == views_.end() || context_.calls.isBusy() || hasBoxInFront()) return;
  if (GetWindow((*place)->window(), GW_CHILD) == nullptr) EnableWindow(handle(), TRUE);
}

// Whether a window of this thread lies in front of this one that is none of the program's forms.
bool FormWindow::hasBoxInFront() const {
  struct Search {
    HWND owner;
    bool found;
  };
  const auto look = [](HWND window, LPARAM more) -> BOOL {
    auto& search = *reinterpret_cast<Search*>(more);
    const bool isInFront = GetWindow(window, GW_OWNER) == search.owner && IsWindowVisible(window) != FALSE;
    search.found = isInFront && !isOfClass(window, formClass(receive));
    return search.found ? FALSE : TRUE;
  };
  Search search{handle(), false};
  EnumThreadWindows(GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// --- messages ---

void FormWindow::paint() {
  const Painting painting(handle());
  RECT box{};
  GetClientRect(handle(), &box);
  drawBuffered(painting.device(), box, context_.scale, [&](Canvas& canvas) {
    canvas.fill(box, look_ == screen::FormLook::splash ? screen::palette::kNavyDeep : screen::palette::kPaper);
    for (const auto& view : views_) {
      if (view->window() == nullptr) view->paintOnForm(canvas);
    }
  });
}

LRESULT FormWindow::handle(UINT message, WPARAM wide, LPARAM large) {
  if (const auto answer = reflect(message, wide, large)) return *answer;
  switch (message) {
    case WM_PAINT:
      paint();
      return 0;
    case WM_ERASEBKGND:
      return TRUE;
    case WM_CLOSE:
      close();
      return 0;
    case WM_ENABLE:
      KillTimer(handle(), kInputClock);
      if (wide == FALSE) SetTimer(handle(), kInputClock, kInputInterval, nullptr);
      break;
    case WM_ENDSESSION:
      if (wide != FALSE && sessionEnds) sessionEnds();
      return 0;
    case WM_SIZE:
      resized(wide);
      return 0;
    case WM_MOVE:
      reportPlace();
      return 0;
    case WM_GETMINMAXINFO:
      limitSize(*reinterpret_cast<MINMAXINFO*>(large));
      return 0;
    case WM_DPICHANGED:
      changeScale(LOWORD(wide), *reinterpret_cast<const RECT*>(large));
      return 0;
    case WM_MOUSEMOVE:
      if (!popUpWatch_.pointerRests()) pointAtForm();
      return 0;
    case WM_LBUTTONDBLCLK: {
      forms::Form& form = form_;
      act([&form] { form.userDoubleClick(); });
      return 0;
    }
    case WM_TIMER:
      elapsed(wide);
      return 0;
    case WM_ACTIVATE:
      activated(LOWORD(wide) != WA_INACTIVE && HIWORD(wide) == 0);
      return 0;
    case WM_SETCURSOR:
      if (showsWaiting(context_, large)) return TRUE;
      break;
    default:
      break;
  }
  return DefWindowProcW(handle(), message, wide, large);
}

LRESULT FormWindow::receive(HWND window, UINT message, WPARAM wide, LPARAM large) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(large);
    auto* made = static_cast<FormWindow*>(creation->lpCreateParams);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
  }
  auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (form == nullptr || form->handle() != window) return DefWindowProcW(window, message, wide, large);
  LRESULT answer = 0;
  form->context_.calls.guard([&] { answer = form->handle(message, wide, large); });
  return answer;
}

}  // namespace windows

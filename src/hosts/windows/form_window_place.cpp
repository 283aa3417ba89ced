#include <algorithm>

#include "hosts/windows/form_class.h"
#include "hosts/windows/form_window.h"
#include "hosts/windows/window_placement.h"

// Where a form's window stands and how large it is, and how its form hears of it.
namespace windows {

SIZE FormWindow::frameSize() const {
  const FormStyle style = formStyle(look_);
  RECT frame{};
  AdjustWindowRectExForDpi(&frame, style.basic, FALSE, style.extended, GetDpiForWindow(handle()));
  return {widthOf(frame), heightOf(frame)};
}

// All that lies on a palette.
RECT FormWindow::paletteControls() const {
  RECT all{};
  for (const forms::Control* control : form_.controls()) {
    if (control->container() != nullptr) continue;
    const RECT rect = context_.scale.rectOf(*control);
    UnionRect(&all, &all, &rect);
  }
  return all;
}

// A palette ends a little beyond its controls. The layout that the program makes while it loads a form is already that
// of the window's real size.
void FormWindow::placeFirst(std::optional<SIZE> size) {
  constexpr double kPaletteMargin = 8;
  const Room room = roomOf(handle());
  SIZE stored{context_.scale.pixels(form_.width()), context_.scale.pixels(form_.height())};
  if (look_ == screen::FormLook::palette) {
    const RECT controls = paletteControls();
    const int margin = context_.scale.of(kPaletteMargin);
    stored = {controls.right + margin + frameSize().cx, controls.bottom + margin + frameSize().cy};
  }
  RECT place = firstPlace(look_, stored, room);
  hasSizeOfItsOwn_ = size.has_value();
  if (size) place = {0, 0, size->cx, size->cy};
  placing_ = true;
  SetWindowPos(handle(), nullptr, place.left, place.top, widthOf(place), heightOf(place),
               SWP_NOZORDER | SWP_NOACTIVATE);
  if (look_ == screen::FormLook::splash) roundCorners(handle(), context_.scale);
  form_.setLeft(context_.scale.twips(place.left));
  form_.setTop(context_.scale.twips(place.top));
  form_.setWidth(context_.scale.twips(widthOf(place)));
  form_.setHeight(context_.scale.twips(heightOf(place)));
  placing_ = false;
}

void FormWindow::limitSize(MINMAXINFO& limits) const {
  if (look_ != screen::FormLook::window || hasSizeOfItsOwn_) return;
  const SIZE smallest = smallestWorkingWindow(context_.scale);
  limits.ptMinTrackSize = {smallest.cx, smallest.cy};
}

// One layout for all the steps of a resize that arrive together.
void FormWindow::resized(WPARAM how) {
  InvalidateRect(handle(), nullptr, FALSE);
  if (!form_.isLoaded() || placing_) return;
  const bool minimized = how == SIZE_MINIMIZED;
  forms::Form& form = form_;
  if (minimized != wasMinimized_) {
    wasMinimized_ = minimized;
    context_.queue.postWhenFree([&form, minimized] {
      if (!form.isLoaded()) return;
      minimized ? form.userMinimize() : form.userRestore();
    });
  }
  if (minimized || !sizeReported_) return;
  sizeReported_ = false;
  context_.queue.postWhenFree([this, isHere = std::weak_ptr<bool>(isHere_)] {
    if (!isHere.expired() && form_.isLoaded()) reportSize();
  });
}

void FormWindow::reportSize() {
  sizeReported_ = true;
  if (IsIconic(handle()) != FALSE || IsWindowVisible(handle()) == FALSE) return;
  RECT now{};
  GetWindowRect(handle(), &now);
  const Scale& scale = context_.scale;
  if (widthOf(now) == scale.pixels(form_.width()) && heightOf(now) == scale.pixels(form_.height())) return;
  form_.userResize(scale.twips(widthOf(now)), scale.twips(heightOf(now)));
}

void FormWindow::reportPlace() {
  if (!form_.isLoaded() || placing_ || IsIconic(handle()) != FALSE || IsWindowVisible(handle()) == FALSE) return;
  RECT now{};
  GetWindowRect(handle(), &now);
  const Scale& scale = context_.scale;
  if (now.left == scale.pixels(form_.left()) && now.top == scale.pixels(form_.top())) return;
  placing_ = true;  // half told, the place would be one that the window is not at
  form_.setLeft(scale.twips(now.left));
  form_.setTop(scale.twips(now.top));
  placing_ = false;
}

// A palette that the program has put over an edge of the screen comes back onto it.
void FormWindow::keepOnScreen() {
  const RECT area = roomOf(handle()).area;
  RECT now{};
  GetWindowRect(handle(), &now);
  const LONG left = std::max(area.left, std::min(now.left, area.right - widthOf(now)));
  const LONG top = std::max(area.top, std::min(now.top, area.bottom - heightOf(now)));
  if (left == now.left && top == now.top) return;
  SetWindowPos(handle(), nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::changeScale(UINT dots, const RECT& suggested) {
  context_.scale = roomOf(MonitorFromRect(&suggested, MONITOR_DEFAULTTONEAREST), dots).scale;
  for (const auto& view : views_) view->rescale();
  SetWindowPos(handle(), nullptr, suggested.left, suggested.top, widthOf(suggested), heightOf(suggested),
               SWP_NOZORDER | SWP_NOACTIVATE);
  reportPlace();  // the same pixels are another place in twips
}

}  // namespace windows

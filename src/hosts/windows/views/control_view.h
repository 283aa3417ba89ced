#pragma once

#include <optional>
#include <string>

#include "forms/form.h"
#include "hosts/screen/displays.h"
#include "hosts/windows/drawing/canvas.h"
#include "hosts/windows/views/view_context.h"
#include "hosts/windows/win32/handles.h"

namespace windows {

// One control on the screen: a native window that shows the model and tells it what the user does. A view may have no
// window: a timer has none, and decoration is painted by its form.
class ControlView : public screen::ControlDisplay {
 public:
  // Both outlive the view. `parent` is the window of the control's container, or of its form.
  ControlView(forms::Control& control, ViewContext& context, HWND parent)
      : control_(control), context_(context), parent_(parent) {}
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  // The view that a window of this thread shows, or null.
  [[nodiscard]] static ControlView* of(HWND window);

  [[nodiscard]] forms::Control& control() const { return control_; }
  [[nodiscard]] HWND window() const { return window_.get(); }

  void sync(forms::Property property) override;
  void syncVisible() override;
  // The window draws at another size now.
  virtual void rescale();

  // The pointer, or the keyboard in its stead, has come to the control.
  void pointAt();

  // The colour on which the controls that it holds stand.
  [[nodiscard]] virtual forms::Color surface() const { return behind(); }
  // Draws a control that has no window of its own; coordinates are the form's.
  virtual void paintOnForm(Canvas& /*canvas*/) const {}

  // --- what its window tells its parent ---
  virtual void commanded(WORD /*code*/) {}
  [[nodiscard]] virtual std::optional<LRESULT> notified(NMHDR& /*notice*/) { return std::nullopt; }
  void drawItem(const DRAWITEMSTRUCT& item);
  // The brush behind its texts.
  [[nodiscard]] virtual std::optional<LRESULT> colored(HDC device);

 protected:
  // Makes the window: a child of the parent, in front of those made before, hidden. Place, font and pointer are seen to
  // from here on.
  void create(const wchar_t* windowClass, DWORD style, DWORD extendedStyle = 0);
  [[nodiscard]] ViewContext& context() const { return context_; }
  [[nodiscard]] const Scale& scale() const { return context_.scale; }
  [[nodiscard]] HWND parent() const { return parent_; }
  [[nodiscard]] HFONT font() const { return font_.get(); }
  [[nodiscard]] virtual forms::FontSpec fontSpec() const { return control_.font; }
  [[nodiscard]] RECT clientRect() const;
  // Where its window stands in its parent.
  [[nodiscard]] virtual RECT place() const { return scale().rectOf(control_); }
  // The colour on which the control stands.
  [[nodiscard]] forms::Color behind() const;
  void repaint() const;

  // Tells the model what the user did, when the control is done with its message; nothing while the program is at work
  // or its form is not loaded. The action must not need the view, which may be gone by then.
  void act(ActionQueue::Action action) const;
  // The same, but when the program is at work it is told as soon as that is done.
  void actWhenFree(ActionQueue::Action action) const;

  // A message to the window; nothing leaves it to the window itself.
  [[nodiscard]] virtual std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large);
  // What `handle` leaves.
  LRESULT passOn(UINT message, WPARAM wide, LPARAM large) const;

  // Draws a control of ours; coordinates are the window's own. `state` is that of an owner-drawn button.
  virtual void paint(Canvas& /*canvas*/, UINT /*state*/) const {}
  // Answers WM_PAINT with `paint`, for windows that would draw themselves.
  LRESULT paintWindow() const;

 private:
  // The action, unless the form is not loaded by then.
  [[nodiscard]] ActionQueue::Action whileLoaded(ActionQueue::Action action) const;
  static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wide, LPARAM large, UINT_PTR id, DWORD_PTR view);
  [[nodiscard]] bool pointerHasMoved();

  forms::Control& control_;
  ViewContext& context_;
  HWND parent_;
  FontHandle font_;
  BrushHandle background_;
  WindowHandle window_;
  DWORD lastPointer_ = 0;
};

// Answers WM_SETCURSOR, whose second parameter is `hit`, while a call is under way: the pointer says so. False when
// none is, and outside the window's own room.
[[nodiscard]] bool showsWaiting(const ViewContext& context, LPARAM hit);

// Passes on what a child window tells its parent in a message to the child's view; nothing when it is none of this.
[[nodiscard]] std::optional<LRESULT> reflect(UINT message, WPARAM wide, LPARAM large);

}  // namespace windows

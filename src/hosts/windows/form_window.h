#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "forms/form.h"
#include "hosts/screen/displays.h"
#include "hosts/screen/looks.h"
#include "hosts/windows/pop_up_watch.h"
#include "hosts/windows/views/control_view.h"
#include "hosts/windows/views/view_context.h"

namespace windows {

// A form on the screen: its controls as native windows, back to front, and the window's own messages.
class FormWindow : public screen::FormDisplay {
 public:
  // All outlive the window. `owner` is the window that a palette stays in front of, or null.
  FormWindow(forms::Form& form, screen::ProgramCalls& calls, ActionQueue& queue, HWND owner);
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  // The user's session with the system ends, and the program with it.
  std::function<void()> sessionEnds;

  [[nodiscard]] HWND handle() const { return window_.get(); }
  [[nodiscard]] ControlView* viewOf(const forms::Control& control) const override;

  // Puts the window where its form first stands, with a size of its own where one is given, and tells the form; no
  // event is raised.
  void placeFirst(std::optional<SIZE> size);
  void show();
  void hide();
  // The form is unloaded: the window is not seen, found or heard any more.
  void leave();

  void syncForm(forms::Property property) override;
  void controlWritten(const forms::Control& control, forms::Property property) override;
  void paintNow(const forms::Control& control, forms::Property written) override;
  void markCurrentTool(const std::string& command) override;
  // A call into the program has returned: shows what the user's own action changed in the model.
  void afterCall();
  // What a message to one of its controls means to the window as a whole; true when nobody else is to hear of it.
  [[nodiscard]] bool takeMessage(const MSG& message);

 private:
  static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wide, LPARAM large);
  LRESULT handle(UINT message, WPARAM wide, LPARAM large);

  void makeWindow(HWND owner);
  void makeViews();
  void act(ActionQueue::Action action);
  void close();
  void paint();
  void pointAtForm();
  void visibilityWritten(const forms::Control& control);
  void watchPopUps();
  void leaveToItsLabel(HWND popUp);
  void elapsed(UINT_PTR clock);
  void takeInputWithoutEngine();
  [[nodiscard]] bool hasBoxInFront() const;
  void resized(WPARAM how);
  void reportSize();
  void reportPlace();
  void keepOnScreen();
  void changeScale(UINT dots, const RECT& suggested);
  void limitSize(MINMAXINFO& limits) const;
  void activated(bool active);
  void focusFirst();
  [[nodiscard]] bool turnPage(bool next);
  [[nodiscard]] bool listIsOpen(HWND at) const;
  [[nodiscard]] SIZE frameSize() const;
  [[nodiscard]] RECT paletteControls() const;

  screen::FormLook look_;
  ViewContext context_;
  WindowHandle window_;
  WindowHandle toolTips_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::map<const forms::Control*, ControlView*> viewOf_;
  PopUpWatch popUpWatch_;
  HWND lastFocus_ = nullptr;                                     // of a window that is not active
  std::shared_ptr<bool> isHere_ = std::make_shared<bool>(true);  // for what is done later
  bool hasSizeOfItsOwn_ = false;
  bool sizeReported_ = true;
  bool layoutWritten_ = false;  // and not painted yet
  bool wasMinimized_ = false;
  bool placing_ = false;  // the program, or its host, moves the window
};

}  // namespace windows

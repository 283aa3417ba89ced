#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hosts/screen/display_listener.h"
#include "hosts/windows/action_queue.h"
#include "hosts/windows/form_window.h"
#include "hosts/windows/long_work.h"
#include "hosts/windows/waiting_windows.h"

namespace windows {

// Shows the program's forms as native windows, on the thread that made it. Handles of windows are their HWND.
//
// What the user does reaches the models after the control is done with its message, through an action queue: a message
// loop (runMessages, or any other, as a modal box's) must run for it. While a call into the program is under way,
// what the user does to controls is not heard; closing, sizes and ticks wait until it has returned.
class WindowsHost : public screen::DisplayListener {
 public:
  // `calls` outlives the host.
  explicit WindowsHost(screen::ProgramCalls& calls);
  ~WindowsHost() override;

  // The working window's first size with its frame, in pixels, instead of most of the screen; it may then be made as
  // small as one likes.
  void setFirstSize(SIZE size) { firstSize_ = size; }

  // The window of a form that is loaded, or null.
  [[nodiscard]] FormWindow* windowOf(const forms::Form& form) const;
  // The native window of a control that has one of its own; null for one that is only painted or never seen.
  [[nodiscard]] HWND handleOf(const forms::Control& control) const;
  // The window that messages and dialogs lie in front of, or null.
  [[nodiscard]] HWND frontWindow() const;
  // What the engine that the program waits for may do to its windows.
  [[nodiscard]] WaitingWindows& waitingWindows() const { return *waitingWindows_; }
  // When the user last waited for the program.
  [[nodiscard]] LongWork& work() const { return *work_; }
  // Nobody is there to answer questions any more: the user's session with the system ends, or the program does.
  [[nodiscard]] bool isUnattended() const { return unattended_; }
  void leaveUnattended();
  // A call into the program begins, or its end.
  screen::ProgramCalls::Action workBegan;

  // All windows of forms that are loaded.
  [[nodiscard]] std::vector<FormWindow*> windows() const;
  // Closes all windows at once, without a word to the program.
  void closeAll();
  // Lets the window that a message is for hear of it before its control does: keys that turn pages, the tab key,
  // Escape. True when nobody else is to hear of it, also of clicks and keys made while the program did not answer.
  [[nodiscard]] bool takeMessage(const MSG& message) const;

  void formLoaded(forms::Form& form) override;
  void formShown(forms::Form& form) override;
  void formHidden(forms::Form& form) override;
  void formUnloaded(forms::Form& form) override;
  void navigated(forms::WebBrowser& browser, const std::string& path) override;
  [[nodiscard]] std::int64_t windowHandle(const forms::Control& control) override;
  [[nodiscard]] std::string locationName(const forms::WebBrowser& browser) override;

 private:
  [[nodiscard]] FormWindow* displayOf(const forms::Form& form) const override { return windowOf(form); }
  [[nodiscard]] const FormWindow* workingWindow() const;
  void beforeCall();
  void afterCall();
  void endSession();

  ActionQueue queue_;
  std::unique_ptr<WaitingWindows> waitingWindows_ = std::make_unique<WaitingWindows>(*this);
  std::unique_ptr<LongWork> work_ = std::make_unique<LongWork>();
  bool unattended_ = false;
  std::optional<SIZE> firstSize_;
  std::map<const forms::Form*, std::unique_ptr<FormWindow>> windows_;  // of forms that are loaded
  std::vector<std::unique_ptr<FormWindow>> leaving_;  // of forms that were unloaded while their own messages ran
};

}  // namespace windows

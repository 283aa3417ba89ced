#pragma once

#include <deque>

#include "hosts/screen/program_calls.h"
#include "hosts/windows/win32/handles.h"

namespace windows {

// What the user has done to controls, told to the program when the control is done with its own message. Actions run
// in their order, one after the other, whenever the thread's messages are handled and no call is under way.
class ActionQueue {
 public:
  using Action = screen::ProgramCalls::Action;

  // `calls` outlives the queue.
  explicit ActionQueue(screen::ProgramCalls& calls);
  ~ActionQueue();
  ActionQueue(const ActionQueue&) = delete;
  ActionQueue& operator=(const ActionQueue&) = delete;

  // Runs the action soon; nothing while a call is under way: the user cannot mean a program that is at work.
  void post(Action action);
  // Runs the action as soon as no call is under way.
  void postWhenFree(Action action);
  // The same for what the host has to do for itself, outside the program.
  void postOwn(Action action);

  // A call has returned: what waited may run.
  void wake();
  // Forgets all that waits.
  void clear() { actions_.clear(); }

 private:
  static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wide, LPARAM large);
  void runNext();

  screen::ProgramCalls& calls_;
  WindowHandle window_;
  std::deque<Action> actions_;
};

}  // namespace windows

#pragma once

#include "hosts/screen/program_calls.h"
#include "hosts/windows/action_queue.h"
#include "hosts/windows/drawing/scale.h"

namespace windows {

// What the views of one form's window share.
struct ViewContext {
  screen::ProgramCalls& calls;
  ActionQueue& queue;
  HWND form = nullptr;
  HWND toolTips = nullptr;
  Scale scale{};
  bool keyboardUsed = false;   // to get about in the window: what has the keyboard shows a ring
  bool restoresFocus = false;  // the window is given back the focus that it had
};

}  // namespace windows

#pragma once

#include "hosts/windows/com/com_ptr.h"
#include "hosts/windows/com/pulse.h"
#include "hosts/windows/win32/windows_h.h"

namespace windows {

class WindowsHost;

// What happens while OLE waits for the engine, as long as this lives: the thread's message filter. A call that the
// engine refuses because it is busy is tried again; an engine that keeps the program waiting is let in front (its own
// modal box may wait for the user), and a user who clicks or types meanwhile is asked whether to go on waiting. A call
// given up fails like any other, unless its answer has come while the user was asked. When nobody is there to
// answer, a call is given up soon and without a question.
class BusyEngine {
 public:
  // The host outlives this. OLE has been started on the thread.
  explicit BusyEngine(WindowsHost& host);
  ~BusyEngine();
  BusyEngine(const BusyEngine&) = delete;
  BusyEngine& operator=(const BusyEngine&) = delete;

 private:
  Pulse pulse_;
  ComPtr<IMessageFilter> filter_;
};

// The title and the buttons of the question, for those who answer it: "Mortalidad en Veldoria 1999-2002", IDRETRY to
// wait on, IDCANCEL to give the call up.
inline constexpr UINT kEngineBusyStyle = MB_RETRYCANCEL | MB_ICONEXCLAMATION;

}  // namespace windows

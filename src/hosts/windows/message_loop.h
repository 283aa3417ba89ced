#pragma once

#include "hosts/windows/windows_host.h"

namespace windows {

// Runs the thread's messages until somebody posts its end (PostQuitMessage).
void runMessages(const WindowsHost& host);

// Handles the messages that wait now; false when the thread's end was among them.
bool runWaitingMessages(const WindowsHost& host);

// Handles the keys and mouse buttons that wait now, for the windows that they were meant for.
void handleWaitingInput(const WindowsHost& host);

}  // namespace windows

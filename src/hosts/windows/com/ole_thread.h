#pragma once

namespace windows {

// OLE on this thread, as a single-threaded apartment, as long as it lives. Throws Failure when it cannot be started.
class OleThread {
 public:
  OleThread();
  ~OleThread();
  OleThread(const OleThread&) = delete;
  OleThread& operator=(const OleThread&) = delete;
};

}  // namespace windows

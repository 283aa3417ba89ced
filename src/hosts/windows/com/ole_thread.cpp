#include "hosts/windows/com/ole_thread.h"

#include "hosts/windows/com/ole_failure.h"

namespace windows {

OleThread::OleThread() {
  const HRESULT started = OleInitialize(nullptr);
  if (FAILED(started)) throw failureOf(started);
}

OleThread::~OleThread() { OleUninitialize(); }

}  // namespace windows

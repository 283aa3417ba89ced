#pragma once

#include <utility>

namespace windows {

// A handle of the system with one owner, closed by `close`. A value-initialised handle is none.
template <class Handle, auto close>
class UniqueHandle {
 public:
  UniqueHandle() = default;
  explicit UniqueHandle(Handle handle) : handle_(handle) {}
  ~UniqueHandle() { reset(); }
  UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.release()) {}
  UniqueHandle& operator=(UniqueHandle&& other) noexcept {
    reset(other.release());
    return *this;
  }

  [[nodiscard]] Handle get() const { return handle_; }
  [[nodiscard]] explicit operator bool() const { return handle_ != Handle{}; }
  [[nodiscard]] Handle release() { return std::exchange(handle_, Handle{}); }
  void reset(Handle handle = Handle{}) {
    const Handle old = std::exchange(handle_, handle);
    if (old != Handle{}) close(old);
  }

 private:
  Handle handle_{};
};

}  // namespace windows

#pragma once

#include <utility>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// A counted reference to a COM object.
template <class Interface>
class ComPtr {
 public:
  ComPtr() = default;
  // Shares the object.
  explicit ComPtr(Interface* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ~ComPtr() { reset(); }
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  // Takes over a reference that the caller owns.
  [[nodiscard]] static ComPtr owning(Interface* object) {
    ComPtr result;
    result.object_ = object;
    return result;
  }

  [[nodiscard]] Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }
  [[nodiscard]] explicit operator bool() const { return object_ != nullptr; }

  void reset() {
    if (Interface* old = std::exchange(object_, nullptr)) old->Release();
  }
  // Where a call is to put a new reference; the old one is given back first.
  [[nodiscard]] Interface** put() {
    reset();
    return &object_;
  }

  // Where a call may exchange the reference for another one.
  [[nodiscard]] Interface** inOut() { return &object_; }

  // The object by another interface; null when it has none.
  template <class Other>
  [[nodiscard]] ComPtr<Other> as() const {
    ComPtr<Other> result;
    if (object_ != nullptr) object_->QueryInterface(__uuidof(Other), reinterpret_cast<void**>(result.put()));
    return result;
  }

 private:
  Interface* object_ = nullptr;
};

}  // namespace windows

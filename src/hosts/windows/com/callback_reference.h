#pragma once

#include <utility>

#include "hosts/windows/com/callback_dispatch.h"

namespace windows {

// The program's reference to a callback object as an engine has it. With it goes the connection: an engine that
// outlives its session, or forgets to let go, calls nobody.
class CallbackReference {
 public:
  CallbackReference() = default;
  // Of no object where there is none.
  explicit CallbackReference(std::shared_ptr<platform::CallbackObject> object) {
    if (object != nullptr) dispatch_ = CallbackDispatch::create(std::move(object));
  }
  ~CallbackReference() { disconnect(); }
  CallbackReference(CallbackReference&&) noexcept = default;
  CallbackReference& operator=(CallbackReference&& other) noexcept {
    disconnect();
    dispatch_ = std::move(other.dispatch_);
    return *this;
  }

  [[nodiscard]] CallbackDispatch* get() const { return dispatch_.get(); }

 private:
  void disconnect();

  ComPtr<CallbackDispatch> dispatch_;
};

}  // namespace windows

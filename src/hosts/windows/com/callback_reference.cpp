#include "hosts/windows/com/callback_reference.h"

namespace windows {

void CallbackReference::disconnect() {
  if (!dispatch_) return;
  dispatch_->disconnect();
  CoDisconnectObject(dispatch_.get(), 0);
  dispatch_.reset();
}

}  // namespace windows

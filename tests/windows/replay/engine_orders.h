#pragma once

#include <functional>

#include "hosts/windows/win32/handles.h"
#include "wire/fields.h"

namespace wintest {

// Orders to the test engine that is alive (engine/orders.h).
class EngineOrders {
 public:
  // `pump` handles messages of this thread once, or waits a moment where there are none.
  explicit EngineOrders(std::function<void()> pump);

  // Gives an order and handles messages until it has been carried out. False when there is no engine, or it could not.
  [[nodiscard]] bool give(const wire::Fields& order);

 private:
  static LRESULT CALLBACK handle(HWND window, UINT message, WPARAM wide, LPARAM large);

  std::function<void()> pump_;
  windows::WindowHandle window_;
  bool done_ = false;
  bool wentWell_ = false;
};

// The orders' window of the engine made last, or null.
[[nodiscard]] HWND engineListening();

}  // namespace wintest

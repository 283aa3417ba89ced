#pragma once

#include <functional>
#include <string>

#include "hosts/windows/win32/windows_h.h"
#include "wire/fields.h"

namespace testengine {

// Each engine listens for a test's orders in a message-only window of this class.
inline constexpr const wchar_t* kOrdersClass = L"MapEngineUnderTestOrders";

// Orders (fields): "mapclick X Y", "callback METHOD MESSAGE", "die N" (in the Nth call from now on, its work done),
// "box N" (in the Nth call it shows a modal message box), "title TEXT" (of the engine's frame). They are sent as
// WM_COPYDATA, the sender's window as wParam; when an order has been carried out that window is posted kOrderDone, with
// wParam 1 when it went well.
inline constexpr UINT kOrderDone = WM_APP + 1;
// Sent to the orders' window: how many objects of the test engine are alive in its process.
inline constexpr UINT kCountObjects = WM_APP + 2;
// The same of its process: openHandles and memoryBlocks (live_objects.h).
inline constexpr UINT kOpenHandles = WM_APP + 4;
inline constexpr UINT kMemoryBlocks = WM_APP + 5;

class Orders {
 public:
  // `carryOut` is called for each order from the thread's messages.
  explicit Orders(std::function<bool(const wire::Fields&)> carryOut);
  ~Orders();
  Orders(const Orders&) = delete;
  Orders& operator=(const Orders&) = delete;

 private:
  static LRESULT CALLBACK handle(HWND window, UINT message, WPARAM wide, LPARAM large);

  std::function<bool(const wire::Fields&)> carryOut_;
  HWND window_;
};

}  // namespace testengine

#include "engine/orders.h"

#include <memory>

#include "com/module.h"
#include "engine/live_objects.h"

namespace testengine {
namespace {

// An order on its way from the message that brought it to the one that carries it out: no call may be made to another
// program while that waits for a message to be answered.
struct Waiting {
  wire::Fields order;
  HWND sender;
};
constexpr UINT kCarryOut = WM_APP + 3;

}  // namespace

Orders::Orders(std::function<bool(const wire::Fields&)> carryOut) : carryOut_(std::move(carryOut)) {
  static const ATOM windowClass = [] {
    WNDCLASSW description{};
    description.lpfnWndProc = handle;
    description.hInstance = comserver::thisModule();
    description.lpszClassName = kOrdersClass;
    return RegisterClassW(&description);
  }();
  window_ = CreateWindowExW(0, MAKEINTATOM(windowClass), nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                            comserver::thisModule(), nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Orders::~Orders() { DestroyWindow(window_); }

LRESULT CALLBACK Orders::handle(HWND window, UINT message, WPARAM wide, LPARAM large) {
  if (message == kCountObjects) return liveObjects();
  if (message == kOpenHandles) return openHandles();
  if (message == kMemoryBlocks) return memoryBlocks();
  auto* orders = reinterpret_cast<Orders*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == WM_COPYDATA) {
    const auto& data = *reinterpret_cast<const COPYDATASTRUCT*>(large);
    const auto order = wire::unpacked({static_cast<const char*>(data.lpData), data.cbData});
    if (!order || order->empty()) return FALSE;
    auto waiting = std::make_unique<Waiting>(*order, reinterpret_cast<HWND>(wide));
    if (PostMessageW(window, kCarryOut, 0, reinterpret_cast<LPARAM>(waiting.get())) == 0) return FALSE;
    (void)waiting.release();
    return TRUE;
  }
  if (message == kCarryOut && orders != nullptr) {
    const std::unique_ptr<Waiting> waiting(reinterpret_cast<Waiting*>(large));
    const auto carryOut = orders->carryOut_;  // the order may end the engine and this with it
    const bool wentWell = carryOut(waiting->order);
    PostMessageW(waiting->sender, kOrderDone, wentWell ? 1 : 0, 0);
    return 0;
  }
  return DefWindowProcW(window, message, wide, large);
}

}  // namespace testengine

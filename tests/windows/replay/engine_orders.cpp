#include "replay/engine_orders.h"

#include <chrono>
#include <stdexcept>

#include "engine/orders.h"

namespace wintest {
namespace {

constexpr auto kPatience = std::chrono::minutes(2);

}  // namespace

HWND engineListening() { return FindWindowExW(HWND_MESSAGE, nullptr, testengine::kOrdersClass, nullptr); }

EngineOrders::EngineOrders(std::function<void()> pump) : pump_(std::move(pump)) {
  constexpr const wchar_t* kClass = L"GiverOfOrders";
  WNDCLASSW description{};
  description.lpfnWndProc = handle;
  description.hInstance = GetModuleHandleW(nullptr);
  description.lpszClassName = kClass;
  RegisterClassW(&description);
  window_.reset(
      CreateWindowExW(0, kClass, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, description.hInstance, nullptr));
  SetWindowLongPtrW(window_.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

bool EngineOrders::give(const wire::Fields& order) {
  const HWND engine = engineListening();
  std::string text = wire::packed(order);
  COPYDATASTRUCT data{0, static_cast<DWORD>(text.size()), text.data()};
  done_ = false;
  if (engine == nullptr || SendMessageW(engine, WM_COPYDATA, reinterpret_cast<WPARAM>(window_.get()),
                                        reinterpret_cast<LPARAM>(&data)) == 0) {
    return false;
  }
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!done_) {
    pump_();
    if (std::chrono::steady_clock::now() > end) throw std::runtime_error("the engine carries no order out");
  }
  return wentWell_;
}

LRESULT CALLBACK EngineOrders::handle(HWND window, UINT message, WPARAM wide, LPARAM large) {
  auto* orders = reinterpret_cast<EngineOrders*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == testengine::kOrderDone && orders != nullptr) {
    orders->done_ = true;
    orders->wentWell_ = wide == 1;
  }
  return DefWindowProcW(window, message, wide, large);
}

}  // namespace wintest

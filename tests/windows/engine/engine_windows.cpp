#include "engine/engine_windows.h"

#include <stdexcept>

#include "com/module.h"

namespace testengine {
namespace {

constexpr DWORD kMapStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;
constexpr DWORD kLooseStyle = WS_POPUP | WS_CLIPSIBLINGS;
constexpr DWORD kLegendStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;

HWND handleIn(const std::string& digits) { return reinterpret_cast<HWND>(static_cast<LONG_PTR>(std::stoll(digits))); }

std::string digitsOf(HWND window) { return std::to_string(reinterpret_cast<LONG_PTR>(window)); }

LPCWSTR surfaceClass(WNDPROC procedure) {
  static const ATOM windowClass = [procedure] {
    WNDCLASSW description{};
    description.lpfnWndProc = procedure;
    description.hInstance = comserver::thisModule();
    description.hCursor = LoadCursorW(nullptr, IDC_CROSS);
    description.lpszClassName = L"MapEngineUnderTestMap";
    return RegisterClassW(&description);
  }();
  return MAKEINTATOM(windowClass);
}

}  // namespace

EngineWindows::~EngineWindows() {
  while (!surfaces_.empty()) {
    const HWND window = surfaces_.begin()->first;
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    surfaces_.erase(window);
    DestroyWindow(window);
  }
}

wire::Fields EngineWindows::handle(const wire::Fields& wish) {
  const std::string& what = wish.at(0);
  const auto window = [&] { return handleIn(wish.at(1)); };
  const auto number = [&](std::size_t field) { return std::stoi(wish.at(field)); };
  if (what == "openmap") return {"done", digitsOf(openMap(number(2), number(3)))};
  if (what == "showlegend") return {"done", digitsOf(showLegend(window(), number(2), number(3)))};
  if (what == "closemap") {
    DestroyWindow(window());
  } else if (what == "changed") {
    refresh(window());
  } else if (what == "resize") {
    SetWindowPos(window(), nullptr, 0, 0, number(2), number(3), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  } else if (what == "maximize") {
    fillParent(window());
  } else if (what == "hidelegend") {
    hideLegend();
  } else {
    return {};
  }
  return {"done"};
}

HWND EngineWindows::openMap(int width, int height) {
  const bool hasHome = IsWindow(application_) != 0;
  front_ = CreateWindowExW(0, surfaceClass(handleMessage), L"", hasHome ? kMapStyle : kLooseStyle, 0, 0, width, height,
                           hasHome ? application_ : nullptr, nullptr, comserver::thisModule(), nullptr);
  remember(front_, false);
  return front_;
}

HWND EngineWindows::showLegend(HWND parent, int x, int y) {
  hideLegend();
  POINT corner{x, y};
  ClientToScreen(parent, &corner);
  legend_ =
      CreateWindowExW(WS_EX_TOOLWINDOW, surfaceClass(handleMessage), L"Leyenda", kLegendStyle, corner.x, corner.y, 200,
                      200, IsWindow(parent) != 0 ? parent : nullptr, nullptr, comserver::thisModule(), nullptr);
  remember(legend_, true);
  fetchPicture(*surfaces_.at(legend_));
  const SIZE picture = surfaces_.at(legend_)->size;
  RECT frame{0, 0, picture.cx, picture.cy};
  AdjustWindowRectEx(&frame, kLegendStyle, FALSE, WS_EX_TOOLWINDOW);
  SetWindowPos(legend_, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  return legend_;
}

void EngineWindows::hideLegend() {
  if (legend_ != nullptr) DestroyWindow(legend_);
}

void EngineWindows::remember(HWND window, bool isLegend) {
  if (window == nullptr) throw std::runtime_error("no window");
  auto surface = std::make_unique<Surface>(Surface{*this, window, isLegend, true, {}, {}});
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(surface.get()));
  surfaces_[window] = std::move(surface);
}

void EngineWindows::refresh(HWND window) {
  const auto found = surfaces_.find(window);
  if (found == surfaces_.end()) return;
  found->second->isStale = true;
  InvalidateRect(window, nullptr, FALSE);
}

void EngineWindows::fillParent(HWND window) {
  RECT room{};
  GetClientRect(GetAncestor(window, GA_PARENT), &room);
  SetWindowPos(window, nullptr, 0, 0, room.right, room.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
}

void EngineWindows::fetchPicture(Surface& surface) {
  RECT room{};
  GetClientRect(surface.window, &room);
  const wire::Fields question =
      surface.isLegend
          ? wire::Fields{"legendpicture"}
          : wire::Fields{"picture", digitsOf(surface.window), std::to_string(room.right), std::to_string(room.bottom)};
  wire::Fields answer = surface.owner.tryAsk(question);
  if (answer.size() < 4) return;
  surface.size = {std::stoi(answer[1]), std::stoi(answer[2])};
  surface.pixels = std::move(answer[3]);
  surface.isStale = false;
}

void EngineWindows::paint(Surface& surface) {
  if (surface.isStale) fetchPicture(surface);
  PAINTSTRUCT painting;
  const HDC device = BeginPaint(surface.window, &painting);
  BITMAPINFO picture{};
  picture.bmiHeader.biSize = sizeof picture.bmiHeader;
  picture.bmiHeader.biWidth = surface.size.cx;
  picture.bmiHeader.biHeight = -surface.size.cy;  // from the top down
  picture.bmiHeader.biPlanes = 1;
  picture.bmiHeader.biBitCount = 32;
  if (!surface.pixels.empty()) {
    SetDIBitsToDevice(device, 0, 0, static_cast<DWORD>(surface.size.cx), static_cast<DWORD>(surface.size.cy), 0, 0, 0,
                      static_cast<UINT>(surface.size.cy), surface.pixels.data(), &picture, DIB_RGB_COLORS);
  }
  EndPaint(surface.window, &painting);
}

wire::Fields EngineWindows::tryAsk(const wire::Fields& question) const {
  try {
    return ask_(question);
  } catch (const std::runtime_error&) {
    return {};
  }
}

LRESULT CALLBACK EngineWindows::handleMessage(HWND window, UINT message, WPARAM wide, LPARAM large) {
  auto* surface = reinterpret_cast<Surface*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (surface == nullptr) return DefWindowProcW(window, message, wide, large);
  EngineWindows& owner = surface->owner;
  switch (message) {
    case WM_PAINT:
      paint(*surface);
      return 0;
    case WM_SIZE:
      surface->isStale = true;
      InvalidateRect(window, nullptr, FALSE);
      if (!surface->isLegend) {
        owner.tryAsk({"resized", digitsOf(window), std::to_string(LOWORD(large)), std::to_string(HIWORD(large))});
      }
      return 0;
    case WM_LBUTTONDOWN:
      if (!surface->isLegend) {
        owner.tryAsk(
            {"clicked", digitsOf(window), std::to_string(GET_X_LPARAM(large)), std::to_string(GET_Y_LPARAM(large))});
      }
      return 0;
    case WM_CLOSE:
      if (surface->isLegend) owner.tryAsk({"legendclosed"});
      DestroyWindow(window);
      return 0;
    case WM_NCDESTROY:
      SetWindowLongPtrW(window, GWLP_USERDATA, 0);
      if (owner.legend_ == window) owner.legend_ = nullptr;
      if (owner.front_ == window) owner.front_ = nullptr;
      owner.surfaces_.erase(window);
      return 0;
    default:
      return DefWindowProcW(window, message, wide, large);
  }
}

}  // namespace testengine

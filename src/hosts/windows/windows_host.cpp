#include "hosts/windows/windows_host.h"

#include <utility>

#include "forms/web_browser.h"
#include "hosts/screen/looks.h"
#include "hosts/windows/views/web_browser_view.h"

namespace windows {

WindowsHost::WindowsHost(screen::ProgramCalls& calls) : DisplayListener(calls), queue_(calls) {
  constexpr DWORD kClasses = ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES;
  const INITCOMMONCONTROLSEX controls{sizeof controls, kClasses};
  InitCommonControlsEx(&controls);
  DisableProcessWindowsGhosting();  // wait notices stay to be seen
  calls.began = [this] { beforeCall(); };
  calls.returned = [this] { afterCall(); };
}

WindowsHost::~WindowsHost() {
  closeAll();
  calls().began = nullptr;
  calls().returned = nullptr;
}

FormWindow* WindowsHost::windowOf(const forms::Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.get();
}

std::vector<FormWindow*> WindowsHost::windows() const {
  std::vector<FormWindow*> all;
  for (const auto& [form, window] : windows_) all.push_back(window.get());
  return all;
}

HWND WindowsHost::handleOf(const forms::Control& control) const {
  const FormWindow* window = windowOf(control.form());
  if (window == nullptr) return nullptr;
  if (&control == &control.form()) return window->handle();
  const ControlView* view = window->viewOf(control);
  return view == nullptr ? nullptr : view->window();
}

const FormWindow* WindowsHost::workingWindow() const {
  for (const auto& [form, window] : windows_) {
    if (screen::lookOf(*form) == screen::FormLook::window) return window.get();
  }
  return nullptr;
}

// The one that is active, else the working window, else any that is seen.
HWND WindowsHost::frontWindow() const {
  const HWND active = GetActiveWindow();
  HWND seen = nullptr;
  for (const auto& [form, window] : windows_) {
    if (window->handle() == active) return active;
    if (IsWindowVisible(window->handle()) != FALSE) seen = window->handle();
  }
  const FormWindow* working = workingWindow();
  return working != nullptr && IsWindowVisible(working->handle()) != FALSE ? working->handle() : seen;
}

// Palettes go before the window that they lie in front of.
void WindowsHost::closeAll() {
  queue_.clear();
  leaving_.clear();
  auto windows = std::exchange(windows_, {});
  for (const auto& [form, window] : windows) window->leave();
  std::erase_if(windows, [](const auto& entry) { return screen::lookOf(*entry.first) == screen::FormLook::palette; });
}

bool WindowsHost::takeMessage(const MSG& message) const {
  for (const auto& [form, window] : windows_) {
    const HWND handle = window->handle();
    if (message.hwnd == handle || IsChild(handle, message.hwnd) != FALSE) {
      return work_->covers(message) || window->takeMessage(message);
    }
  }
  return false;
}

void WindowsHost::formLoaded(forms::Form& form) {
  const FormWindow* working = workingWindow();
  auto window = std::make_unique<FormWindow>(form, calls(), queue_, working == nullptr ? nullptr : working->handle());
  FormWindow& made = *window;
  made.sessionEnds = [this] { endSession(); };
  windows_[&form] = std::move(window);
  const bool isWorking = screen::lookOf(form) == screen::FormLook::window;
  made.placeFirst(isWorking ? firstSize_ : std::nullopt);
}

void WindowsHost::formShown(forms::Form& form) {
  if (FormWindow* window = windowOf(form)) window->show();
}

void WindowsHost::formHidden(forms::Form& form) {
  if (FormWindow* window = windowOf(form)) window->hide();
}

// The window may be in the middle of a message of its own, so it goes when that is done. A palette that lies in front
// of it stays until it is closed itself: the system would end it without a word.
void WindowsHost::formUnloaded(forms::Form& form) {
  auto found = windows_.find(&form);
  if (found == windows_.end()) return;
  for (const auto& [other, window] : windows_) {
    const bool isOwned = GetWindow(window->handle(), GW_OWNER) == found->second->handle();
    if (isOwned) SetWindowLongPtrW(window->handle(), GWLP_HWNDPARENT, 0);
  }
  found->second->leave();
  leaving_.push_back(std::move(found->second));
  windows_.erase(found);
  queue_.postOwn([this] { leaving_.clear(); });
}

void WindowsHost::navigated(forms::WebBrowser& browser, const std::string& path) {
  const auto* view = dynamic_cast<const WebBrowserView*>(viewOf(browser));
  if (view != nullptr) view->navigate(path);
}

std::int64_t WindowsHost::windowHandle(const forms::Control& control) {
  return static_cast<std::int64_t>(reinterpret_cast<LONG_PTR>(handleOf(control)));
}

std::string WindowsHost::locationName(const forms::WebBrowser& browser) {
  const auto* view = dynamic_cast<const WebBrowserView*>(viewOf(browser));
  return view == nullptr ? "" : view->locationName();
}

void WindowsHost::leaveUnattended() {
  unattended_ = true;
  if (workBegan) workBegan();
}

// As if the user had closed the program, but at once: the system waits for the answer to its message only. A call under
// way is left to the system.
void WindowsHost::endSession() {
  leaveUnattended();
  const FormWindow* window = workingWindow();
  if (window == nullptr && !windows_.empty()) window = windows_.begin()->second.get();
  if (window == nullptr || calls().isBusy()) return;
  forms::Form& form = window->form();
  calls().run([&form] { form.userClose(); });
}

void WindowsHost::beforeCall() {
  work_->begin(GetTickCount());
  if (workBegan) workBegan();
}

// The program is over when its last form is gone.
void WindowsHost::afterCall() {
  work_->end(GetTickCount());
  for (const auto& [form, window] : windows_) window->afterCall();
  const HCURSOR waiting = LoadCursorW(nullptr, IDC_WAIT);
  if (GetCursor() == waiting) SetCursor(LoadCursorW(nullptr, IDC_ARROW));
  queue_.wake();
  if (windows_.empty() && calls().ended) calls().ended();
}

}  // namespace windows

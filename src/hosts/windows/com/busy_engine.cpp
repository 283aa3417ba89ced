#include "hosts/windows/com/busy_engine.h"

#include "hosts/windows/modal_time.h"
#include "hosts/windows/program_name.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/windows_host.h"

namespace windows {
namespace {

constexpr const wchar_t* kQuestion =
    L"El motor de mapas está ocupado o espera una respuesta en una ventana suya.\n\n"
    L"Reintentar: seguir esperando.\nCancelar: dejar la operación sin terminar.";

constexpr DWORD kPatience = 8000;   // milliseconds before the user is asked
constexpr DWORD kStepAside = 1500;  // before the program's windows let others in front
constexpr DWORD kTryAgain = 150;    // between tries of a refused call
constexpr DWORD kGiveUp = static_cast<DWORD>(-1);

class Filter final : public IMessageFilter {
 public:
  explicit Filter(const WindowsHost& host) : host_(host) {}
  virtual ~Filter() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    if (result == nullptr) return E_POINTER;
    *result = id == IID_IUnknown || id == IID_IMessageFilter ? this : nullptr;
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  // The engine's callbacks are always heard.
  DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
    return SERVERCALL_ISHANDLED;
  }

  DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK callee, DWORD waited, DWORD) override {
    if (!isTooLong(waited)) return kTryAgain;
    return keepWaiting(callee, waited) ? kTryAgain : kGiveUp;
  }

  // What the user does to the program's windows meanwhile is dropped by them, and tells that he waits.
  DWORD STDMETHODCALLTYPE MessagePending(HTASK callee, DWORD waited, DWORD) override {
    if (waited >= kStepAside) stepAside(callee);
    if (!isTooLong(waited) || !userIsWaiting()) return PENDINGMSG_WAITDEFPROCESS;
    return keepWaiting(callee, waited) ? PENDINGMSG_WAITDEFPROCESS : PENDINGMSG_CANCELCALL;
  }

 private:
  // Whether the wait for a call is longer than what the user has agreed to so far.
  [[nodiscard]] bool isTooLong(DWORD waited) {
    if (waited < forgiven_) forgiven_ = 0;  // another call
    return waited - forgiven_ >= kPatience;
  }

  [[nodiscard]] static bool userIsWaiting() { return HIWORD(GetQueueStatus(QS_KEY | QS_MOUSEBUTTON)) != 0; }

  // A box of the engine must not stay behind a window of ours.
  void stepAside(HTASK callee) const {
    constexpr UINT kStay = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    for (const FormWindow* window : host_.windows()) {
      const bool isTopmost = (GetWindowLongPtrW(window->handle(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
      if (isTopmost) SetWindowPos(window->handle(), HWND_NOTOPMOST, 0, 0, 0, 0, kStay);
    }
    if (userIsWaiting()) EnumThreadWindows(static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(callee)), bringForward, 0);
  }

  static BOOL CALLBACK bringForward(HWND window, LPARAM) {
    if (IsWindowVisible(window) == FALSE || IsWindowEnabled(window) == FALSE) return TRUE;
    SetForegroundWindow(window);
    return FALSE;
  }

  bool keepWaiting(HTASK callee, DWORD waited) {
    if (asking_) return true;
    asking_ = true;
    stepAside(callee);
    const ULONGLONG before = GetTickCount64();
    const ModalTime modal(host_);
    const int answer = MessageBoxW(modal.owner(), kQuestion, wide(kProgramName).c_str(), kEngineBusyStyle);
    forgiven_ = waited + static_cast<DWORD>(GetTickCount64() - before);
    asking_ = false;
    return answer == IDRETRY;
  }

  const WindowsHost& host_;
  ULONG references_ = 1;
  DWORD forgiven_ = 0;  // the part of the wait that the user has agreed to
  bool asking_ = false;
};

}  // namespace

BusyEngine::BusyEngine(const WindowsHost& host)
    : pulse_(host.calls()), filter_(ComPtr<IMessageFilter>::owning(new Filter(host))) {
  CoRegisterMessageFilter(filter_.get(), nullptr);
}

BusyEngine::~BusyEngine() { CoRegisterMessageFilter(nullptr, nullptr); }

}  // namespace windows

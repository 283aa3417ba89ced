#include "hosts/windows/com/busy_engine.h"

#include <utility>

#include "hosts/windows/com/asking_window.h"
#include "hosts/windows/modal_time.h"
#include "hosts/windows/program_name.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/windows_host.h"

namespace windows {
namespace {

constexpr const wchar_t* kQuestion =
    L"El motor de mapas está ocupado o espera una respuesta en una ventana suya.\n\n"
    L"Reintentar: seguir esperando.\nCancelar: dejar la operación sin terminar.";

constexpr DWORD kPatience = 8000;      // milliseconds before the user is asked
constexpr DWORD kStepAside = 1500;     // before the program's windows let others in front
constexpr DWORD kTryAgain = 150;       // between tries of a refused call
constexpr DWORD kLastPatience = 2000;  // before a call is given up when nobody is there
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
    DWORD answer = kTryAgain;
    host_.calls().guard([&] { answer = goesOnAfterRefusal(callee, waited) ? kTryAgain : kGiveUp; });
    return answer;
  }

  // What the user does to the program's windows meanwhile is dropped by them, and tells that he waits.
  DWORD STDMETHODCALLTYPE MessagePending(HTASK callee, DWORD waited, DWORD) override {
    DWORD answer = PENDINGMSG_WAITDEFPROCESS;
    host_.calls().guard([&] { answer = goesOn(callee, waited) ? PENDINGMSG_WAITDEFPROCESS : PENDINGMSG_CANCELCALL; });
    return answer;
  }

 private:
  [[nodiscard]] bool goesOnAfterRefusal(HTASK callee, DWORD waited) {
    if (host_.isUnattended()) return waited < kLastPatience;
    return !isTooLong(waited) || keepWaiting(callee, waited);
  }

  // A call that the user gives up is cancelled at the next look: its answer may have come while he was asked, and is
  // taken before there is another look.
  [[nodiscard]] bool goesOn(HTASK callee, DWORD waited) {
    if (host_.isUnattended()) return waited < kLastPatience;
    if (const DWORD givenUp = std::exchange(givenUpAfter_, 0); givenUp > 0 && waited >= givenUp) return false;
    if (waited >= kStepAside) stepAside(callee);
    if (isTooLong(waited) && userIsWaiting() && !keepWaiting(callee, waited)) givenUpAfter_ = waited;
    return true;
  }

  // Whether the wait for a call is longer than what the user has agreed to so far.
  [[nodiscard]] bool isTooLong(DWORD waited) {
    if (waited < forgiven_) forgiven_ = 0;  // another call
    return waited - forgiven_ >= kPatience;
  }

  [[nodiscard]] static bool userIsWaiting() { return HIWORD(GetQueueStatus(QS_KEY | QS_MOUSEBUTTON)) != 0; }

  // A box of the engine must not stay behind a window of ours.
  void stepAside(HTASK callee) const {
    host_.waitingWindows().stepAside();
    if (!userIsWaiting()) return;
    const HWND window = askingWindow(static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(callee)));
    if (window != nullptr) SetForegroundWindow(window);
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
  DWORD forgiven_ = 0;      // the part of the wait that the user has agreed to
  DWORD givenUpAfter_ = 0;  // the wait of the call that the user has given up; 0 for none
  bool asking_ = false;
};

}  // namespace

BusyEngine::BusyEngine(WindowsHost& host) : pulse_(host), filter_(ComPtr<IMessageFilter>::owning(new Filter(host))) {
  CoRegisterMessageFilter(filter_.get(), nullptr);
}

BusyEngine::~BusyEngine() { CoRegisterMessageFilter(nullptr, nullptr); }

}  // namespace windows

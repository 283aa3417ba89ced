#include <string_view>

#include "com/module.h"
#include "com/registration.h"
#include "engine/engine_class.h"
#include "engine/live_objects.h"
#include "engine/test_engine.h"

// The test engine as a program: one process for each engine, which ends with it. Starting one takes the system a
// second, so each that is used starts the next. "/register" registers it.
namespace {

bool registerThis() {
  return comserver::registerProgram(testengine::kEngineClass, comserver::thisFile()) &&
         comserver::registerName(testengine::kProgramId, testengine::kEngineClass);
}

void startNext() {
  STARTUPINFOW how{};
  how.cb = sizeof how;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(comserver::thisFile().c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how,
                     &started) == 0) {
    return;
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
}

// The end comes with the engine, or where none was asked for in five minutes.
void runMessagesWhileNeeded() {
  constexpr UINT kLook = 200;  // milliseconds between two looks where no message comes
  constexpr int kPatience = 1500;
  SetTimer(nullptr, 0, kLook, nullptr);
  bool wasNeeded = false;
  MSG message;
  for (int looks = 0; wasNeeded || looks < kPatience;) {
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) return;
    DispatchMessageW(&message);
    if (message.message == WM_TIMER) ++looks;
    const bool isNeeded = testengine::liveObjects() > 0;
    if (wasNeeded && !isNeeded) return;
    if (isNeeded && !wasNeeded) startNext();
    wasNeeded = wasNeeded || isNeeded;
  }
}

int serve() {
  if (FAILED(OleInitialize(nullptr))) return 1;
  DWORD cookie = 0;
  if (FAILED(CoRegisterClassObject(testengine::kEngineClass, &testengine::engineFactory(), CLSCTX_LOCAL_SERVER,
                                   REGCLS_SINGLEUSE, &cookie))) {
    return 1;
  }
  runMessagesWhileNeeded();
  CoRevokeClassObject(cookie);
  OleUninitialize();
  return 0;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*earlier*/, wchar_t* commandLine, int /*show*/) {
  return std::wstring_view(commandLine) == L"/register" ? (registerThis() ? 0 : 1) : serve();
}

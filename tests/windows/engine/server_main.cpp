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

// The end comes soon after that of the engine, or where none was asked for in five minutes. Not at once: the answer to
// whoever let go of the engine is still on its way then, on another thread, and a caller who gets none is left with
// what its system holds of the connection.
void runMessagesWhileNeeded() {
  constexpr UINT kLook = 200;  // milliseconds between two looks where no message comes
  constexpr int kPatience = 1500;
  constexpr int kFarewell = 5;
  SetTimer(nullptr, 0, kLook, nullptr);
  bool wasNeeded = false;
  MSG message;
  for (int looksLeft = kPatience; looksLeft > 0;) {
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) return;
    DispatchMessageW(&message);
    const bool isNeeded = testengine::liveObjects() > 0;
    if (isNeeded && !wasNeeded) startNext();
    wasNeeded = wasNeeded || isNeeded;
    if (isNeeded) looksLeft = kFarewell;
    if (message.message == WM_TIMER && !isNeeded) --looksLeft;
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

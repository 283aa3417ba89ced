#include "hosts/windows/com/busy_engine.h"

#include <gtest/gtest.h>

#include "hosts/windows/com/ole_thread.h"
#include "hosts/windows/ports/test_box_user.h"
#include "hosts/windows/test_program.h"
#include "hosts/windows/win32/window_class.h"
#include "hosts/windows/win32/z_order.h"

namespace windows {
namespace {

// The filter as OLE asks it while a call waits.
class Filter : public ::testing::Test {
 protected:
  Filter() {
    CoRegisterMessageFilter(nullptr, filter.put());
    setTopmost(selector(), true, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }

  [[nodiscard]] HWND selector() const { return program.window(program.selector); }
  // A look at the call that has waited so long, in milliseconds.
  DWORD look(DWORD waited) { return filter->MessagePending(nullptr, waited, PENDINGTYPE_TOPLEVEL); }
  DWORD refuse(DWORD waited) { return filter->RetryRejectedCall(nullptr, waited, SERVERCALL_RETRYLATER); }
  // Somebody who presses a button of each question.
  static testing::BoxUser::Use pressing(int button) {
    return [button](HWND box) {
      PostMessageW(box, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(box, button)));
    };
  }
  // The user touches a key; it waits in the queue.
  static void pressKey() {
    keybd_event(VK_SHIFT, 0, 0, 0);
    keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
  }

  // Whether a call is given up soon, and nobody is asked.
  void expectLittlePatience() {
    const testing::BoxUser user(pressing(IDRETRY));
    pressKey();
    EXPECT_EQ(look(1900), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
    EXPECT_EQ(look(2000), static_cast<DWORD>(PENDINGMSG_CANCELCALL));
    EXPECT_LT(refuse(1900), 1000U);
    EXPECT_EQ(refuse(2000), static_cast<DWORD>(-1));
    EXPECT_EQ(user.count(), 0);
  }

  // How often the pulse beats while so many beats are waited for, half a minute at most.
  static int beatsHeard(int expected) {
    int beats = 0;
    const ULONGLONG end = GetTickCount64() + 30000;
    while (beats < expected && GetTickCount64() < end) {
      MSG message;
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 100, QS_ALLINPUT);
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (isOfClass(message.hwnd, L"VeldoriaPulse")) ++beats;
        DispatchMessageW(&message);
      }
    }
    return beats;
  }

  OleThread ole;
  testing::Program program{testing::Program::First::selector};
  BusyEngine busyEngine{program.host};
  ComPtr<IMessageFilter> filter;
};

TEST_F(Filter, LetsTheEngineInFrontAfterAWhile) {
  EXPECT_EQ(look(1000), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
  EXPECT_TRUE(isTopmost(selector()));
  EXPECT_EQ(look(1600), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
  EXPECT_FALSE(isTopmost(selector()));
  program.host.waitingWindows().comeBack();
  EXPECT_TRUE(isTopmost(selector()));
}

TEST_F(Filter, AsksNobodyWhoDoesNothing) {
  const testing::BoxUser user(pressing(IDCANCEL));
  EXPECT_EQ(look(100000), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
  EXPECT_EQ(user.count(), 0);
}

TEST_F(Filter, WaitsOnAsLongAsTheUserAgrees) {
  const testing::BoxUser user(pressing(IDRETRY));
  pressKey();
  EXPECT_EQ(look(9000), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
  EXPECT_EQ(user.count(), 1);
  pressKey();
  EXPECT_EQ(look(9500), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
  EXPECT_EQ(user.count(), 1);
}

// The answer may have come while the user was asked: OLE takes it before it looks again.
TEST_F(Filter, CancelsACallThatTheUserGivesUpAtTheNextLook) {
  const testing::BoxUser user(pressing(IDCANCEL));
  pressKey();
  EXPECT_EQ(look(9000), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
  EXPECT_EQ(user.count(), 1);
  EXPECT_EQ(look(9500), static_cast<DWORD>(PENDINGMSG_CANCELCALL));
}

TEST_F(Filter, CancelsNoOtherCallThanTheOneGivenUp) {
  const testing::BoxUser user(pressing(IDCANCEL));
  pressKey();
  EXPECT_EQ(look(9000), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
  program.settle();
  EXPECT_EQ(look(500), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS)) << "the next call";
  EXPECT_EQ(look(9500), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
  EXPECT_EQ(user.count(), 1);
}

TEST_F(Filter, TriesARefusedCallAgainUntilTheUserGivesItUp) {
  constexpr DWORD kGivenUp = static_cast<DWORD>(-1);
  const testing::BoxUser user(pressing(IDCANCEL));
  EXPECT_LT(refuse(7000), 1000U);
  EXPECT_EQ(user.count(), 0);
  EXPECT_EQ(refuse(8000), kGivenUp);
  EXPECT_EQ(user.count(), 1);
}

TEST_F(Filter, GivesTheLastCallsLittleTimeWhenTheSessionEnds) {
  program.calls.run([this] { SendMessageW(program.window(program.form), WM_ENDSESSION, TRUE, 0); });
  expectLittlePatience();
}

TEST_F(Filter, GivesTheLastCallsLittleTimeWhenTheProgramEnds) {
  program.host.leaveUnattended();
  expectLittlePatience();
}

// The end is no call: whoever waits in it for the engine looks about as often.
TEST_F(Filter, LooksAboutUntilTheProgramHasEnded) {
  program.host.leaveUnattended();
  EXPECT_GE(beatsHeard(3), 3);
}

}  // namespace
}  // namespace windows

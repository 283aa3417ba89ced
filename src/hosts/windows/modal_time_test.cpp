#include "hosts/windows/modal_time.h"

#include <gtest/gtest.h>

#include <functional>

#include "hosts/windows/test_program.h"

namespace windows {
namespace {

constexpr DWORD kLong = 300;    // milliseconds that the user waits for the program
constexpr DWORD kMoment = 100;  // and that he does not notice

void press(HWND window) { PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5)); }
void type(HWND window, WPARAM key) { PostMessageW(window, WM_KEYDOWN, key, 0); }

// Whether a message of that kind waits for the box that opens.
bool waits(UINT kind) {
  MSG message;
  return PeekMessageW(&message, nullptr, kind, kind, PM_NOREMOVE) != FALSE;
}

// A box that opens in the midst of a call into the program.
class Box : public ::testing::Test {
 protected:
  void openAfter(DWORD milliseconds, const std::function<void()>& userActs, const std::function<void()>& look) {
    program.calls.run([&] {
      Sleep(milliseconds);
      userActs();
      const ModalTime modal(program.host);
      look();
    });
  }

  testing::Program program;
  HWND button = program.window(program.form.button);
  HWND text = program.window(program.form.box);
};

TEST_F(Box, IsNotAnsweredByWhatWasPressedWhileTheProgramDidNotAnswer) {
  const auto userActs = [this] {
    press(button);
    type(button, VK_RETURN);
    type(button, VK_ESCAPE);
  };
  openAfter(kLong, userActs, [] {
    EXPECT_FALSE(waits(WM_LBUTTONDOWN));
    EXPECT_FALSE(waits(WM_KEYDOWN));
  });
  program.settle();
  EXPECT_EQ(program.take(), testing::Program::Words{});
}

TEST_F(Box, IsNotAnsweredByTheKeyboardItself) {
  SetForegroundWindow(program.window(program.form));
  SetFocus(button);
  const auto userActs = [] {
    keybd_event(VK_RETURN, 0, 0, 0);
    keybd_event(VK_RETURN, 0, KEYEVENTF_KEYUP, 0);
    EXPECT_TRUE(waits(WM_KEYDOWN));
  };
  openAfter(kLong, userActs, [] { EXPECT_FALSE(waits(WM_KEYDOWN)); });
}

TEST_F(Box, IsAnsweredByWhoeverDidNotHaveToWaitForIt) {
  openAfter(
      0, [this] { type(button, VK_RETURN); }, [] { EXPECT_TRUE(waits(WM_KEYDOWN)); });
}

TEST_F(Box, LeavesToTheTextWhatWasTypedIntoIt) {
  openAfter(
      kLong, [this] { type(text, 'A'); }, [this] { EXPECT_EQ(SendMessageW(text, WM_GETTEXTLENGTH, 0, 0), 1); });
}

TEST_F(Box, InterruptsTheWorkThatTheUserWaitsFor) {
  openAfter(
      kMoment, [] {},
      [this] {
        Sleep(kLong);
        press(button);
        const ModalTime second(program.host);
        EXPECT_TRUE(waits(WM_LBUTTONDOWN)) << "the program has answered since, with a box";
      });
}

TEST_F(Box, LeavesTheThreadsEndToTheLoopOutside) {
  openAfter(
      kLong, [] { PostQuitMessage(3); }, [] {});
  EXPECT_FALSE(runWaitingMessages(program.host));
}

}  // namespace
}  // namespace windows

#include "hosts/windows/waiting_windows.h"

#include <gtest/gtest.h>

#include "hosts/windows/modal_time.h"
#include "hosts/windows/test_program.h"
#include "hosts/windows/win32/z_order.h"

namespace windows {
namespace {

class Waiting : public ::testing::Test {
 protected:
  Waiting() { setTopmost(selector(), true, kInPlace); }

  [[nodiscard]] HWND working() const { return program.window(program.form); }
  [[nodiscard]] HWND selector() const { return program.window(program.selector); }

  static constexpr UINT kInPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
  testing::Program program{testing::Program::First::selector};
  WaitingWindows& windows = program.host.waitingWindows();
};

TEST_F(Waiting, LeavesTheFrontAndComesBackToIt) {
  windows.stepAside();
  EXPECT_FALSE(isTopmost(selector()));
  windows.stepAside();
  windows.comeBack();
  EXPECT_TRUE(isTopmost(selector()));
  EXPECT_FALSE(isTopmost(working())) << "it has never been there";
}

TEST_F(Waiting, ComesBackOnce) {
  windows.stepAside();
  windows.comeBack();
  setTopmost(selector(), false, kInPlace);
  windows.comeBack();
  EXPECT_FALSE(isTopmost(selector())) << "the program has said so itself";
}

TEST_F(Waiting, ForgetsWindowsThatHaveClosed) {
  windows.stepAside();
  program.selector.unload();
  program.selector.show();
  windows.comeBack();
  EXPECT_FALSE(isTopmost(selector()));
}

TEST_F(Waiting, TakesInputAgainWhenTheEngineIsGone) {
  EnableWindow(working(), FALSE);
  EnableWindow(selector(), FALSE);
  windows.takeInput();
  EXPECT_TRUE(IsWindowEnabled(working()));
  EXPECT_TRUE(IsWindowEnabled(selector()));
}

TEST_F(Waiting, TakesNoInputBeforeBoxesOfTheProgramHaveClosed) {
  EnableWindow(selector(), FALSE);
  {
    const ModalTime outer(program.host);
    {
      const ModalTime inner(program.host);
      windows.takeInput();
    }
    EXPECT_FALSE(IsWindowEnabled(selector()));
  }
  EXPECT_TRUE(IsWindowEnabled(selector()));
}

TEST_F(Waiting, LeavesWhatTheEngineHasDisabledToItsBox) {
  EnableWindow(working(), FALSE);
  { const ModalTime modal(program.host); }
  EXPECT_FALSE(IsWindowEnabled(working()));
}

}  // namespace
}  // namespace windows

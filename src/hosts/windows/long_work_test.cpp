#include "hosts/windows/long_work.h"

#include <gtest/gtest.h>

#include "hosts/windows/win32/handles.h"

namespace windows {
namespace {

MSG press(DWORD time, UINT message = WM_LBUTTONDOWN, HWND window = nullptr) {
  MSG made{};
  made.hwnd = window;
  made.message = message;
  made.time = time;
  return made;
}

class Work : public ::testing::Test {
 protected:
  void workFrom(DWORD begin, DWORD end) {
    work.begin(begin);
    work.end(end);
  }
  [[nodiscard]] bool covers(DWORD time) const { return work.covers(press(time)); }

  LongWork work;
};

TEST_F(Work, CoversWhatHappenedMeanwhile) {
  EXPECT_FALSE(covers(0)) << "there was none yet";
  workFrom(1000, 3000);
  EXPECT_FALSE(covers(999));
  EXPECT_TRUE(covers(1000));
  EXPECT_TRUE(covers(3000));
  EXPECT_FALSE(covers(3001));
}

TEST_F(Work, IsNoneWhereItTakesAMoment) {
  workFrom(1000, 1199);
  EXPECT_FALSE(covers(1100));
  workFrom(2000, 2200);
  EXPECT_TRUE(covers(2100));
  workFrom(2201, 2210);
  EXPECT_TRUE(covers(2100)) << "what waits since then may not have been handled";
  EXPECT_FALSE(covers(2205));
}

TEST_F(Work, IsOnePieceWhereItGoesOnAtOnce) {
  workFrom(1000, 2000);
  workFrom(2020, 3000);
  EXPECT_TRUE(covers(1500));
  EXPECT_TRUE(covers(2500));
  workFrom(4000, 5000);
  EXPECT_FALSE(covers(1500));
}

TEST_F(Work, TellsWhetherSomethingMayStillWaitFromBefore) {
  EXPECT_FALSE(work.end(500)) << "there was none";
  work.begin(1000);
  EXPECT_TRUE(work.isUnderWay());
  EXPECT_TRUE(work.end(2000));
  EXPECT_FALSE(work.isUnderWay());
  EXPECT_FALSE(work.end(3000)) << "it has ended before";
  EXPECT_FALSE(covers(2500));
  work.begin(2040);
  EXPECT_TRUE(work.end(2050)) << "at once";
  work.begin(2100);
  EXPECT_FALSE(work.end(2110));
}

TEST_F(Work, KnowsThatTheClockStartsAnew) {
  constexpr DWORD kLast = 0xFFFFFFFF;
  workFrom(kLast - 500, 500);
  EXPECT_TRUE(covers(kLast));
  EXPECT_TRUE(covers(0));
  EXPECT_FALSE(covers(501));
  EXPECT_FALSE(covers(kLast - 501));
}

TEST_F(Work, CoversPressesButNotWhatEndsThemNorWhatIsTyped) {
  workFrom(1000, 3000);
  const WindowHandle text(CreateWindowExW(0, WC_EDITW, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
  const WindowHandle list(
      CreateWindowExW(0, WC_LISTBOXW, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
  for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_KEYDOWN}) {
    EXPECT_TRUE(work.covers(press(2000, message, list.get()))) << message;
  }
  EXPECT_FALSE(work.covers(press(2000, WM_KEYDOWN, text.get())));
  for (const UINT message : {WM_LBUTTONUP, WM_KEYUP, WM_MOUSEMOVE, WM_NCLBUTTONDOWN, WM_SYSKEYDOWN, WM_TIMER}) {
    EXPECT_FALSE(work.covers(press(2000, message, list.get()))) << message;
  }
}

}  // namespace
}  // namespace windows

#include <gtest/gtest.h>

#include "hosts/windows/drawing/scale.h"
#include "hosts/windows/test_program.h"

namespace windows {
namespace {

RECT placeOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  return place;
}

// Without moving, as where the resolution of its own monitor changes.
TEST(FormWindowPlace, BecomesLargerWithTheResolutionOfItsMonitor) {
  testing::Program program;
  program.selector.list.addItem("Tasa de mortalidad estandarizada por edad según la población europea");
  program.settle();
  const HWND palette = program.window(program.selector);
  const HWND list = program.window(program.selector.list);
  constexpr int kAway = 120;  // from the edges of the screen
  SetWindowPos(palette, nullptr, kAway, kAway, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  const RECT before = placeOf(palette);
  const int listBefore = widthOf(placeOf(list));
  const auto openBefore = SendMessageW(list, CB_GETDROPPEDWIDTH, 0, 0);
  const forms::Twips leftBefore = program.selector.left();
  ASSERT_GT(leftBefore, 0);

  constexpr UINT kDots = 192;
  RECT suggested = before;
  suggested.right += widthOf(before);
  suggested.bottom += heightOf(before);
  SendMessageW(palette, WM_DPICHANGED, MAKEWPARAM(kDots, kDots), reinterpret_cast<LPARAM>(&suggested));
  program.settle();

  const double larger = static_cast<double>(widthOf(placeOf(list))) / listBefore;
  ASSERT_GT(larger, 1.2);
  EXPECT_EQ(placeOf(palette).left, before.left);
  EXPECT_NEAR(program.selector.left(), leftBefore / larger, leftBefore / 20) << "the same pixels are fewer twips";
  EXPECT_GT(static_cast<double>(SendMessageW(list, CB_GETDROPPEDWIDTH, 0, 0)), 1.15 * static_cast<double>(openBefore));
}

}  // namespace
}  // namespace windows

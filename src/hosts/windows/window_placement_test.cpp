#include "hosts/windows/window_placement.h"

#include <gtest/gtest.h>

namespace windows {
namespace {

using screen::FormLook;

SIZE sizeOf(const RECT& rect) { return {widthOf(rect), heightOf(rect)}; }

TEST(Scale, TurnsTwipsIntoPixelsOfTheMonitor) {
  EXPECT_EQ(Scale().pixels(15360), 1024);
  EXPECT_EQ(Scale(144).pixels(15360), 1536);
  EXPECT_EQ(Scale(96, 0.5).pixels(15360), 512);
  EXPECT_DOUBLE_EQ(Scale().twips(1024), 15360);
  EXPECT_DOUBLE_EQ(Scale(192).twips(2048), 15360);
}

TEST(Placement, TheWorkingWindowUsesMostOfItsRoom) {
  const Room hd{{0, 0, 1920, 1040}, Scale()};
  EXPECT_EQ(sizeOf(firstPlace(FormLook::window, {1024, 768}, hd)).cx, 1766);
  EXPECT_EQ(sizeOf(firstPlace(FormLook::window, {1024, 768}, hd)).cy, 957);
  const RECT splash = firstPlace(FormLook::splash, {480, 320}, hd);
  EXPECT_EQ(splash.left, 720);
  EXPECT_EQ(splash.top, 360);
  EXPECT_EQ(splash.right, 1200);
}

TEST(Placement, NothingStandsOutsideASmallRoom) {
  const Room small{{0, 0, 800, 560}, Scale()};
  const RECT place = firstPlace(FormLook::window, {1024, 768}, small);
  EXPECT_EQ(place.left, 0);
  EXPECT_EQ(place.top, 0);
  EXPECT_EQ(sizeOf(place).cx, 800);
  EXPECT_EQ(sizeOf(place).cy, 560);
}

TEST(Placement, ASecondMonitorHasItsOwnCorner) {
  const Room right{{1920, 100, 3200, 1124}, Scale()};
  const RECT place = firstPlace(FormLook::palette, {900, 90}, right);
  EXPECT_EQ(place.left, 1920 + 190);
  EXPECT_EQ(place.top, 100 + 467);
}

}  // namespace
}  // namespace windows

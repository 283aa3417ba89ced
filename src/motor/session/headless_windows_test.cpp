#include "motor/session/headless_windows.h"

#include "motor/session/session_fixture.h"

namespace motor {
namespace {

TEST_F(SessionTest, headlessWindowsGetHandlesAndSizes) {
  HeadlessWindows headless(800, 500);
  Session other(headless, {.roots = {study().path()}});
  other.run("run application \"" + writtenPath("2001\\Año2001.wor") + "\"");
  other.run("Map From Veldoria2001");
  const std::vector<MapWindow*> maps = other.mapWindows();
  ASSERT_EQ(maps.size(), 2U);
  EXPECT_EQ(maps[0]->handle(), 900001);
  EXPECT_EQ(maps[1]->handle(), 900002);
  EXPECT_EQ(maps[1]->map().pixelWidth, 800);
  EXPECT_EQ(maps[1]->map().pixelHeight, 500);
  headless.resize(*maps[1], 300, 200);
  headless.maximize(*maps[1]);
  EXPECT_EQ(maps[1]->map().pixelWidth, 300);
  EXPECT_FALSE(headless.command(*maps[1], 112));
}

}  // namespace
}  // namespace motor

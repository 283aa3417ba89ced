#include "motor/window/overlays/hover_light.h"

#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

class Hover : public MapWidgetTest {
 protected:
  Hover() {
    session_->run("set map zoom entire");
    (void)picture();
  }
  // The darkest grey within a pixel of a place.
  static int darkest(const QImage& image, QPoint at) {
    int grey = 255;
    for (int x = -1; x <= 1; ++x) {
      for (int y = -1; y <= 1; ++y) grey = std::min(grey, qGray(image.pixel(at + QPoint(x, y))));
    }
    return grey;
  }
  [[nodiscard]] QStringList names() const { return widget_->hoverLight().names(); }
};

TEST_F(Hover, TheObjectUnderThePointerLightsUpWithItsName) {
  useOwnTool();
  const QImage before = picture();
  moveTo(pixelOf({-3, 42}));
  EXPECT_EQ(names(), QStringList({"Álamo", "Ñorga"})) << "the zone and the province around it";
  const QImage lit = picture();
  EXPECT_NE(lit, before);
  EXPECT_LT(darkest(lit, pixelOf({-4, 42.2})), 90) << "its outline";
  moveTo(pixelOf({-5, 40.5}));
  EXPECT_EQ(names(), QStringList({"Encina", "Ávalos"}));
  leave();
  EXPECT_TRUE(names().isEmpty());
  EXPECT_EQ(picture(), before);
}

TEST_F(Hover, TheMapItselfIsNotPaintedAnew) {
  useOwnTool();
  (void)picture();
  const int renders = widget_->renderCount();
  for (int x = 20; x < 380; x += 10) {
    moveTo({x, 150});
    (void)picture();
  }
  EXPECT_EQ(widget_->renderCount(), renders);
}

TEST_F(Hover, OnlyToolsThatActOnObjectsLightThem) {
  for (const auto& [tool, lights] :
       {std::pair("1701", true), std::pair("1707", true), std::pair("1708", true), std::pair("1702", false),
        std::pair("1705", false), std::pair("1710", false), std::pair("1734", false)}) {
    session_->run(std::string("run menu command ") + tool);
    moveTo(pixelOf({-3, 42}));
    EXPECT_EQ(widget_->hoverLight().object() != nullptr, lights) << tool;
  }
}

TEST_F(Hover, NothingIsLitWhileTheMapMovesAndAgainWhenItRests) {
  useOwnTool();
  const QPoint at = pixelOf({-3, 42});
  moveTo(at);
  EXPECT_FALSE(names().isEmpty());
  turnWheel(at, 120);
  EXPECT_TRUE(names().isEmpty());
  QTest::qWait(300);
  EXPECT_FALSE(names().isEmpty());
}

TEST_F(Hover, TheLightFollowsTheLayers) {
  useOwnTool();
  moveTo(pixelOf({-3, 42}));
  (void)picture();
  session_->run("set map layer 2 display off");
  (void)picture();
  EXPECT_EQ(names(), QStringList("Ñorga"));
  session_->run("set map layer 1 label with Sexo");
  (void)picture();
  EXPECT_EQ(names(), QStringList("Mujeres")) << "the layer's label expression";
}

// A consultation zooms to its place.
TEST_F(Hover, NothingIsLitUnderAPointerThatRestsWhileTheProgramMovesTheMap) {
  useOwnTool();
  const QPoint at = pixelOf({-3, 42});
  moveTo(at);
  (void)picture();
  ASSERT_FALSE(names().isEmpty());
  session_->run("set map zoom 200 units \"km\"");
  (void)picture();
  EXPECT_TRUE(names().isEmpty());
  session_->run("set map zoom 201 units \"km\"");
  (void)picture();
  EXPECT_TRUE(names().isEmpty());
  moveTo(at + QPoint(1, 0));
  EXPECT_FALSE(names().isEmpty());
  calls_->whenCalled = [&] { session_->run("set map zoom 150 units \"km\""); };
  click(at + QPoint(1, 0));
  EXPECT_EQ(calls_->calls.size(), 1U);
  EXPECT_TRUE(names().isEmpty()) << "the button was let go of where the map had gone away";
}

}  // namespace
}  // namespace motor

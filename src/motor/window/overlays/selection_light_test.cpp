#include "motor/window/overlays/selection_light.h"

#include <cmath>
#include <numbers>

#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

class Selections : public MapWidgetTest {
 protected:
  Selections() { session_->run("set map zoom entire"); }
  [[nodiscard]] bool isMarked(Point border) const {
    const QColor colour = picture().pixelColor(pixelOf(border));
    return colour.red() > 200 && colour.blue() < 90;
  }
};

TEST_F(Selections, SelectedObjectsAreMarked) {
  EXPECT_FALSE(isMarked({-4, 42}));
  session_->run("select * from Provincias2001 where nombre=\"Ñorga\"");
  EXPECT_TRUE(isMarked({-4, 42}));
  EXPECT_EQ(widget_->selectionLight().objects().size(), 1U) << "its twelve rows share it";
  EXPECT_FALSE(isMarked({-6, 42}));
  session_->run("run menu command 304");
  EXPECT_FALSE(isMarked({-4, 42}));
}

TEST_F(Selections, AClickMarksWithoutPaintingTheMapAnew) {
  session_->run("run menu command 1701");
  (void)picture();
  const int renders = widget_->renderCount();
  click(pixelOf({-3, 41.6}));
  EXPECT_TRUE(isMarked({-4, 42}));
  session_->run("run menu command 304");
  EXPECT_FALSE(isMarked({-4, 42}));
  EXPECT_EQ(widget_->renderCount(), renders);
}

// A ring of 4000 points, so that its marks are kept as a picture.
TEST_F(Selections, MarksOfManyPointsMoveWithTheMapAndAreMadeAnewWhenItRests) {
  std::string ring;
  constexpr int kPoints = 4000;
  for (int i = 0; i <= kPoints; ++i) {
    const double angle = 2 * std::numbers::pi * (i % kPoints) / kPoints;
    ring += text::number(-3 + std::cos(angle) * (i % 2 == 0 ? 0.8 : 0.79)) + " " +
            text::number(41.5 + std::sin(angle) * (i % 2 == 0 ? 0.8 : 0.79)) + "\n";
  }
  const std::string object = "Region 1\n  " + std::to_string(kPoints + 1) + "\n" + ring + "    Pen (1,2,0)\n";
  tiny::writeTable(folder_.path(), "Anillo", {"Nombre Char(10)"}, {"\"a\"", "\"b\""},
                   {object, tiny::rectangle({"b", "", -5.9, 40, -5.8, 40.1})});
  session_->run("Open Table \"" + (folder_.path() / "Anillo").string() + "\" As Anillo Add Map Layer Anillo");
  session_->run("set map zoom 150 units \"km\" center (-2.2, 41.5)");
  session_->run("select * from Anillo where nombre=\"a\"");
  const Point right{-2.2, 41.5};
  const auto orange = [&](QPoint at) {
    const QColor colour = picture().pixelColor(at);
    return colour.red() > 200 && colour.blue() < 120;
  };
  const auto isMarkedNear = [&](Point p) {
    const QPoint at = pixelOf(p);
    for (int x = -4; x <= 4; ++x) {
      if (orange(at + QPoint(x, 0))) return true;
    }
    return false;
  };
  EXPECT_TRUE(isMarkedNear(right));
  QTest::keyClick(widget_, Qt::Key_Right);
  EXPECT_TRUE(isMarkedNear(right)) << "while it moves";
  QTest::qWait(300);
  EXPECT_TRUE(isMarkedNear(right)) << "at rest";
}

TEST_F(Selections, WhatIsNotOnTheMapIsNotMarked) {
  session_->run("select * from Provincias2001 where nombre=\"Ñorga\"");
  session_->run("set map layer 1 display off");
  EXPECT_FALSE(isMarked({-4, 42}));
}

TEST_F(Selections, ASelectionOfAllTellsNothingApart) {
  session_->run("select * from Provincias2001");
  EXPECT_FALSE(isMarked({-4, 42}));
}

}  // namespace
}  // namespace motor

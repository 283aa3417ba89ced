#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

class DrawTools : public MapWidgetTest {
 protected:
  void useMode(int mode) {
    session_->run("Create ButtonPad \"Dibujo\" As ToolButton ID 9 DrawMode " + std::to_string(mode) +
                  " Cursor 2 Calling OLE \"dibujo\"");
    session_->run("run menu command ID 9");
  }
  // The numbers that the last callback had as its fields 1, 2, 5 and 6, as pixels.
  [[nodiscard]] QRect told() const {
    const QStringList fields = QString::fromStdString(calls_->calls.back()).mid(10).split(',');
    const QPoint from = pixelOf({fields[0].toDouble(), fields[1].toDouble()});
    return {from, pixelOf({fields[4].toDouble(), fields[5].toDouble()})};
  }
};

TEST_F(DrawTools, WhatIsPulledIsToldWithBothEnds) {
  for (const int mode : {30, 31, 32, 33}) {
    useMode(mode);
    drag(Qt::LeftButton, {150, 100}, {60, 40});
    ASSERT_FALSE(calls_->calls.empty()) << mode;
    EXPECT_EQ(calls_->calls.back().substr(0, 10), "dibujo MI:");
    EXPECT_EQ(told(), QRect(QPoint(150, 100), QPoint(210, 140))) << mode;
    calls_->calls.clear();
  }
}

TEST_F(DrawTools, AClickIsAPointWithBothEndsThere) {
  useMode(32);
  click({150, 100});
  EXPECT_EQ(told(), QRect(QPoint(150, 100), QPoint(150, 100)));
}

TEST_F(DrawTools, ManyPointsEndWithADoubleClick) {
  for (const int mode : {35, 36}) {
    useMode(mode);
    click({100, 100});
    click({150, 120});
    EXPECT_TRUE(calls_->calls.empty());
    doubleClick({200, 90});
    ASSERT_EQ(calls_->calls.size(), 1U) << mode;
    EXPECT_EQ(told(), QRect(QPoint(100, 100), QPoint(200, 90)));
    calls_->calls.clear();
  }
}

TEST_F(DrawTools, EveryShapeIsSeenAndEscapeGivesItUp) {
  const QImage before = picture();
  for (const int mode : {30, 31, 32, 33, 35, 36}) {
    useMode(mode);
    if (mode >= 35) {
      click({150, 100});
      moveTo({210, 140});
    } else {
      pull({150, 100}, {210, 140});
    }
    EXPECT_NE(picture(), before) << mode;
    QTest::keyClick(widget_, Qt::Key_Escape);
    QTest::mouseRelease(widget_, Qt::LeftButton, {}, {210, 140});
    leave();
    EXPECT_EQ(picture(), before) << mode;
    EXPECT_TRUE(calls_->calls.empty()) << mode;
  }
}

}  // namespace
}  // namespace motor

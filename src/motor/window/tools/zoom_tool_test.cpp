#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

using ZoomTools = MapWidgetTest;

TEST_F(ZoomTools, AClickBringsThePointToTheMiddle) {
  session_->run("run menu command 1705");
  const Point clicked = map().toMap({300, 80});
  const double zoom = map().zoomMetres;
  click({300, 80});
  EXPECT_NEAR(map().zoomMetres, zoom / 2, 1e-6);
  EXPECT_NEAR(map().centre.x, clicked.x, 1e-9);
  EXPECT_NEAR(map().centre.y, clicked.y, 1e-9);
  session_->run("run menu command 1706");
  click({200, 150});
  EXPECT_NEAR(map().zoomMetres, zoom, 1e-6);
  EXPECT_NEAR(map().centre.x, clicked.x, 1e-9);
}

TEST_F(ZoomTools, ABoxFillsTheWindow) {
  session_->run("run menu command 1705");
  const Point corner = map().toMap({100, 60});
  const Point opposite = map().toMap({200, 135});
  drag(Qt::LeftButton, {200, 135}, {-100, -75});
  EXPECT_NEAR(map().toPixel(corner).x, 0, 0.01);
  EXPECT_NEAR(map().toPixel(corner).y, 0, 0.01);
  EXPECT_NEAR(map().toPixel(opposite).x, 400, 0.01);
  EXPECT_NEAR(map().toPixel(opposite).y, 300, 0.01);
}

TEST_F(ZoomTools, TheViewShrinksIntoABox) {
  session_->run("run menu command 1706");
  const Box seen = map().visibleBox();
  drag(Qt::LeftButton, {100, 60}, {200, 150});
  EXPECT_NEAR(map().toPixel({seen.minX, seen.maxY}).x, 100, 0.01);
  EXPECT_NEAR(map().toPixel({seen.minX, seen.maxY}).y, 60, 0.01);
  EXPECT_NEAR(map().toPixel({seen.maxX, seen.minY}).x, 300, 0.01);
  EXPECT_NEAR(map().toPixel({seen.maxX, seen.minY}).y, 210, 0.01);
}

TEST_F(ZoomTools, TheBoxIsSeenWhileItIsPulledAndTheMapIsNotPaintedAnew) {
  session_->run("run menu command 1705");
  const QImage before = picture();
  const int renders = widget_->renderCount();
  pull({100, 60}, {200, 135});
  const QImage pulled = picture();
  EXPECT_NE(pulled.pixel(100, 100), before.pixel(100, 100)) << "its edge";
  EXPECT_EQ(pulled.pixel(150, 100), before.pixel(150, 100)) << "what comes nearer";
  EXPECT_LT(qGray(pulled.pixel(300, 250)), qGray(before.pixel(300, 250))) << "what goes is dimmed";
  EXPECT_EQ(widget_->renderCount(), renders);
  QTest::keyClick(widget_, Qt::Key_Escape);
  EXPECT_EQ(picture(), before);
  QTest::mouseRelease(widget_, Qt::LeftButton, {}, {200, 135});
  EXPECT_EQ(picture(), before) << "what was given up does not happen";
}

TEST_F(ZoomTools, EscapeIsLeftToOthersWhenThereIsNothingToGiveUp) {
  struct Frame : QWidget {
    void keyPressEvent(QKeyEvent* event) override { key = event->key(); }
    int key = 0;
  } frame;
  widget_->setParent(&frame);
  session_->run("run menu command 1705");
  QTest::keyClick(widget_, Qt::Key_Escape);
  EXPECT_EQ(frame.key, Qt::Key_Escape);
  widget_->setParent(nullptr);
}

}  // namespace
}  // namespace motor

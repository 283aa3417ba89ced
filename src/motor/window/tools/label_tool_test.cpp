#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

class Labeller : public MapWidgetTest {
 protected:
  Labeller() {
    session_->run("set map layer 1 label Font (\"Arial\",1,10,255) zoom entire");
    session_->run("run menu command 1708");
  }
  [[nodiscard]] const std::vector<EditedLabel>& labels() const { return map().layers[0].label.edited; }
  [[nodiscard]] QRectF boxOf(RowId row) {
    const PlacedLabel* label = widget_->labels().of(map(), {0, row});
    return label == nullptr ? QRectF() : label->box;
  }
  // Blue letters in a part of the picture.
  [[nodiscard]] int inkIn(const QRectF& box) const {
    const QImage image = picture();
    int ink = 0;
    for (int y = qRound(box.top()); y < qRound(box.bottom()); ++y) {
      for (int x = qRound(box.left()); x < qRound(box.right()); ++x) {
        const QColor colour = image.pixelColor(x, y);
        if (colour.blue() > 180 && colour.red() < 80) ++ink;
      }
    }
    return ink;
  }
  [[nodiscard]] QPoint middleOfProvince() const { return pixelOf({-3, 41.5}); }
};

TEST_F(Labeller, AClickOnTheObjectPutsItsLabelAndASecondTakesItAway) {
  EXPECT_EQ(inkIn(widget_->rect()), 0);
  click(middleOfProvince() + QPoint(0, 60));
  ASSERT_EQ(labels().size(), 1U);
  const QRectF box = boxOf(1);
  EXPECT_TRUE(box.contains(middleOfProvince())) << "the label lies in the middle of the province";
  EXPECT_GT(inkIn(box), 40);
  EXPECT_EQ(inkIn(box), inkIn(widget_->rect()));
  click(middleOfProvince() + QPoint(0, 60));
  EXPECT_TRUE(labels().empty());
  EXPECT_EQ(inkIn(widget_->rect()), 0);
}

// A label may lie on another object than its own.
TEST_F(Labeller, AClickOnTheLabelTakesItAwayWhereverItLies) {
  click(middleOfProvince());
  drag(Qt::LeftButton, middleOfProvince(), {130, 0});
  ASSERT_EQ(labels().size(), 1U);
  EXPECT_EQ(labels().front().row, 1U);
  click(middleOfProvince() + QPoint(130, 0));
  EXPECT_TRUE(labels().empty());
}

TEST_F(Labeller, ALabelIsDraggedToWhereItIsDropped) {
  click(middleOfProvince());
  const QRectF before = boxOf(1);
  pull(middleOfProvince(), middleOfProvince() + QPoint(-20, 50));
  EXPECT_EQ(widget_->cursor().shape(), Qt::SizeAllCursor);
  EXPECT_GT(inkIn(before.translated(-20, 50)), 40) << "it is seen on its way";
  QTest::mouseRelease(widget_, Qt::LeftButton, {}, middleOfProvince() + QPoint(-20, 50));
  const QRectF after = boxOf(1);
  EXPECT_NEAR(after.center().x(), before.center().x() - 20, 1.01);
  EXPECT_NEAR(after.center().y(), before.center().y() + 50, 1.01);
  EXPECT_GT(inkIn(after), 40);
  session_->run("run menu command 814");
  EXPECT_EQ(inkIn(widget_->rect()), 0);
}

TEST_F(Labeller, ALabelDoesNotLeaveTheWindow) {
  click(middleOfProvince());
  drag(Qt::LeftButton, middleOfProvince(), {5000, -5000});
  EXPECT_TRUE(QRectF(widget_->rect()).contains(boxOf(1)));
  EXPECT_GT(boxOf(1).left(), 300);
  EXPECT_GT(inkIn(boxOf(1)), 40);
}

TEST_F(Labeller, EscapeLeavesADraggedLabelWhereItWas) {
  click(middleOfProvince());
  leave();
  const QImage before = picture();
  pull(middleOfProvince(), middleOfProvince() + QPoint(60, 20));
  EXPECT_NE(picture(), before);
  QTest::keyClick(widget_, Qt::Key_Escape);
  QTest::mouseRelease(widget_, Qt::LeftButton, {}, middleOfProvince() + QPoint(60, 20));
  leave();
  EXPECT_EQ(picture(), before);
}

TEST_F(Labeller, AnAutomaticLabelGoesAtTheFirstClick) {
  session_->run("set map layer 1 label auto on");
  ASSERT_FALSE(boxOf(1).isEmpty());
  const QRectF box = boxOf(1);
  EXPECT_GT(inkIn(box), 40);
  click(middleOfProvince() + QPoint(0, 60));
  EXPECT_EQ(inkIn(box), 0);
  click(middleOfProvince() + QPoint(0, 60));
  EXPECT_GT(inkIn(box), 40) << "and comes back at the second";
}

TEST_F(Labeller, TheCursorTellsWhatCanBeDragged) {
  click(middleOfProvince());
  moveTo(middleOfProvince());
  EXPECT_EQ(widget_->cursor().shape(), Qt::SizeAllCursor);
  moveTo(middleOfProvince() + QPoint(0, 60));
  EXPECT_EQ(widget_->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(Labeller, NothingHappensBesideTheMap) {
  session_->run("set map zoom 3000 units \"km\"");
  click({10, 10});
  drag(Qt::LeftButton, {10, 10}, {60, 60});
  for (const Layer& layer : map().layers) EXPECT_TRUE(layer.label.edited.empty());
}

}  // namespace
}  // namespace motor

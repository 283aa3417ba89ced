#include "hosts/desktop/focus_order.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <memory>

#include "hosts/desktop/user_hands.h"
#include "hosts/desktop/views/tool_button.h"

namespace desktop {
namespace {

// Two toolbars of three and two buttons in one row with a box between them, and one button below.
class Toolbars : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const int left : {0, 30, 60}) tools.push_back(add(left, 0));
    box.setGeometry(100, 0, 60, 24);
    for (const int left : {170, 200}) tools.push_back(add(left, 0));
    tools.push_back(add(0, 60));
    window.resize(300, 200);
    window.show();
    window.activateWindow();
    hands::settle();
  }
  ToolButton* add(int left, int top) {
    auto* button = new ToolButton("zoom-mas", window);  // the window's
    button->setGeometry(left, top, 24, 24);
    return button;
  }
  // The stops of the keyboard, as the places of tool buttons; -1 for the box.
  [[nodiscard]] std::vector<std::ptrdiff_t> stops() const {
    std::vector<std::ptrdiff_t> places;
    for (QWidget* each : readingOrder(window)) places.push_back(each == &box ? -1 : placeOf(each));
    return places;
  }
  [[nodiscard]] std::ptrdiff_t placeOf(const QWidget* widget) const {
    return std::ranges::find(tools, widget) - tools.begin();
  }
  // Where the keyboard is after a key.
  std::ptrdiff_t press(Qt::Key key) {
    QTest::keyClick(window.focusWidget(), key);
    return placeOf(window.focusWidget());
  }

  using Places = std::vector<std::ptrdiff_t>;
  QWidget window;
  QLineEdit box{&window};
  std::vector<ToolButton*> tools;
};

TEST_F(Toolbars, AreOneStopEach) { EXPECT_EQ(stops(), (Places{0, -1, 3, 5})); }

TEST_F(Toolbars, BeginWithTheToolInHand) {
  tools[2]->setCurrent(true);
  EXPECT_EQ(stops(), (Places{2, -1, 3, 5}));
}

TEST_F(Toolbars, AreEnteredAgainWhereTheyWereLeft) {
  tools[2]->setCurrent(true);
  tools[1]->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(stops(), (Places{1, -1, 3, 5}));
  EXPECT_EQ(nextInReadingOrder(window, tools[1], true), &box);
  tools[4]->setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(stops(), (Places{1, -1, 4, 5}));
  EXPECT_EQ(nextInReadingOrder(window, tools[4], false), &box);
  EXPECT_EQ(nextInReadingOrder(window, tools[4], true), tools[5]);
  EXPECT_EQ(nextInReadingOrder(window, &box, false), tools[1]);
  tools[1]->setEnabled(false);
  EXPECT_EQ(stops(), (Places{2, -1, 4, 5}));
}

TEST_F(Toolbars, ArrowsGoFromButtonToButton) {
  tools[0]->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(press(Qt::Key_Right), 1);
  EXPECT_EQ(press(Qt::Key_Down), 2);
  EXPECT_EQ(press(Qt::Key_Right), 0);
  EXPECT_EQ(press(Qt::Key_Left), 2);
  EXPECT_EQ(press(Qt::Key_Up), 1);
  EXPECT_EQ(press(Qt::Key_Home), 0);
  EXPECT_EQ(press(Qt::Key_End), 2);
  tools[1]->setEnabled(false);
  EXPECT_EQ(press(Qt::Key_Left), 0);
  EXPECT_EQ(toolbarAround(window, *tools[4]), (std::vector<QWidget*>{tools[3], tools[4]}));
}

}  // namespace
}  // namespace desktop

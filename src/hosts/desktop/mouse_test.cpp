#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPaintEvent>
#include <QTreeWidget>
#include <QWheelEvent>

#include "hosts/desktop/shown_form.h"

// What users do with a mouse beside clicking: the wheel and the double click.
namespace desktop {
namespace {

using testing::Events;

constexpr int kNotch = 120;

class Mouse : public testing::ShownForm {
 protected:
  void SetUp() override {
    ShownForm::SetUp();
    for (const char* name : {"Lirio", "Álamo", "Haya", "Roble"}) form.drop.addItem(name);
    for (const char* name : {"1999", "2000", "2001"}) form.combo.addItem(name);
    form.events.clear();
  }
  static void turnWheel(QWidget& over, int angle) {
    const QPointF at(over.rect().center());
    QWheelEvent event(at, over.mapToGlobal(at), {}, {0, angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&over, &event);
  }
  static void doubleClick(QWidget& widget, QPoint at) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, at);
    QTest::mouseDClick(&widget, Qt::LeftButton, Qt::NoModifier, at);  // the second press alone
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, at);
    hands::settle();
  }
};

TEST_F(Mouse, AWheelThatPassesByPicksNothing) {
  widget(form.tree).setFocus();
  for (forms::Control* control : std::initializer_list<forms::Control*>{&form.drop, &form.combo, &form.years}) {
    turnWheel(widget(*control), -kNotch);
  }
  turnWheel(rowOf(form.pages), -kNotch);
  turnWheel(*widget<QComboBox>(form.combo).lineEdit(), -kNotch);
  EXPECT_EQ(form.take(), Events{});
  EXPECT_EQ(widget<QComboBox>(form.drop).currentIndex(), -1);
}

TEST_F(Mouse, TheWheelPicksInTheComboThatHasTheKeyboard) {
  QWidget& drop = widget(form.drop);
  drop.setFocus();
  turnWheel(drop, kNotch);
  EXPECT_EQ(form.take(), Events{});
  turnWheel(drop, -kNotch);
  turnWheel(drop, -kNotch);
  turnWheel(drop, kNotch);
  EXPECT_EQ(form.take(), (Events{"drop click Lirio", "drop click Álamo", "drop click Lirio"}));
  turnWheel(drop, -3 * kNotch);
  turnWheel(drop, -kNotch);
  EXPECT_EQ(form.take(), (Events{"drop click Roble"}));
  auto& combo = widget<QComboBox>(form.combo);
  combo.setFocus();
  turnWheel(combo, -kNotch);
  EXPECT_EQ(form.take(), (Events{"combo click 1999"}));
}

TEST_F(Mouse, TheWheelDoesNotBringTheKeyboard) {
  for (const forms::Control* control : std::initializer_list<const forms::Control*>{&form.drop, &form.combo}) {
    EXPECT_EQ(widget(*control).focusPolicy() & Qt::WheelFocus, Qt::StrongFocus) << control->name();
  }
}

TEST_F(Mouse, AWheelThatTurnsSmoothlyPicksNotchByNotch) {
  QWidget& drop = widget(form.drop);
  drop.setFocus();
  for (int i = 0; i < 7; ++i) turnWheel(drop, -kNotch / 4);
  EXPECT_EQ(form.take(), (Events{"drop click Lirio"}));
  turnWheel(drop, -kNotch / 4);
  EXPECT_EQ(form.take(), (Events{"drop click Álamo"}));
  turnWheel(drop, -kNotch / 2);
  widget(form.tree).setFocus();
  drop.setFocus();
  turnWheel(drop, -kNotch / 2);
  EXPECT_EQ(form.take(), Events{});
}

TEST_F(Mouse, ADoubleClickIsOneClick) {
  calls.run([this] { form.pages.setTab(1); });
  for (const char* name : {"Lirio", "Álamo", "Haya"}) form.list.addItem(name);
  form.events.clear();
  auto& list = widget<QListWidget>(form.list);
  doubleClick(*list.viewport(), list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(form.take(), (Events{"list click Álamo"}));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(form.take(), (Events{"list click Álamo"}));

  auto& years = widget<TabRow>(form.years);
  doubleClick(years, years.tabRect(2).center());
  EXPECT_EQ(form.take(), (Events{"years click 2001"}));
  doubleClick(widget(form.menu), widget(form.menu).rect().center());
  EXPECT_EQ(form.take(), (Events{"menu click"}));
  EXPECT_FALSE(widget<QAbstractButton>(form.menu).isDown());
}

TEST_F(Mouse, ADoubleClickOpensAndClosesABranch) {
  forms::Node& unit = form.tree.add(nullptr, "Brisa");
  form.tree.add(&unit, "Hombres");
  auto& tree = widget<QTreeWidget>(form.tree);
  const QPoint at = tree.visualItemRect(tree.topLevelItem(0)).center();
  doubleClick(*tree.viewport(), at);
  EXPECT_TRUE(unit.expanded());
  doubleClick(*tree.viewport(), at);
  EXPECT_FALSE(unit.expanded());
}

// Notes what of a widget is painted.
class Painted : public QObject {
 public:
  explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion region;
};

TEST_F(Mouse, TheWholeBorderOfAComboFollowsThePointer) {
  for (forms::Control* control : std::initializer_list<forms::Control*>{&form.drop, &form.combo}) {
    QWidget& combo = widget(*control);
    hands::settle();
    Painted painted(combo);
    QEvent left(QEvent::Leave);  // alone, as while a menu is open
    QCoreApplication::sendEvent(&combo, &left);
    hands::settle();
    EXPECT_EQ(painted.region, QRegion(combo.rect())) << control->name();
  }
}

}  // namespace
}  // namespace desktop

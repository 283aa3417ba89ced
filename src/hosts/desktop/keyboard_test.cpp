#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTreeWidget>

#include "hosts/desktop/focus_order.h"
#include "hosts/desktop/panes.h"
#include "hosts/desktop/shown_form.h"
#include "hosts/desktop/theme.h"

namespace desktop {
namespace {

using testing::Events;

class Keyboard : public testing::ShownForm {
 protected:
  [[nodiscard]] Events order() {
    Events names;
    for (const QWidget* each : readingOrder(window())) {
      names.push_back((each->objectName().isEmpty() ? each->parentWidget() : each)->objectName().toStdString());
    }
    return names;
  }
};

TEST_F(Keyboard, BeginsWhereAKeyOnlyChooses) { EXPECT_EQ(window().focusWidget(), &rowOf(form.pages)); }

TEST_F(Keyboard, StaysAtTheTabThatWasClicked) {
  clickTab(rowOf(form.pages), 1);
  EXPECT_EQ(window().focusWidget(), &rowOf(form.pages));
  clickTab(widget<TabRow>(form.years), 2);
  EXPECT_EQ(window().focusWidget(), &widget(form.years));
}

TEST_F(Keyboard, DoesNotGoToALinkWhenItsPlaceIsHidden) {
  widget(form.browser).setFocus(Qt::MouseFocusReason);
  form.events.clear();
  calls.run([this] { form.browser.setVisible(false); });
  EXPECT_EQ(window().focusWidget(), &window());
  QTest::keyClick(&window(), Qt::Key_Return);
  EXPECT_EQ(form.take(), Events{});
  // The next key goes on from there.
  QTest::keyClick(&window(), Qt::Key_Tab);
  EXPECT_EQ(window().focusWidget(), &widget(form.drop));
}

TEST_F(Keyboard, DoesNotGoToALinkWhenItsPlaceIsDisabled) {
  widget(form.drop).setFocus(Qt::MouseFocusReason);
  calls.run([this] { form.drop.setEnabled(false); });
  EXPECT_EQ(window().focusWidget(), &window());
  QTest::keyClick(&window(), Qt::Key_Backtab);
  EXPECT_EQ(window().focusWidget(), &widget(form.browser));
}

TEST_F(Keyboard, ReadsThePagesThenWhatStandsBesideThemThenTheMenu) {
  form.popUp.setVisible(true);
  EXPECT_EQ(order(), (Events{"Ficha", "Image2(0)", "OptIzquierda", "OptDerecha", "Internet", "CmbLista", "ComboTexto",
                             "txtTexto", "FichaAños", "Arbol", "BtnVer", "LblMenu", "PDF1999"}));
}

TEST_F(Keyboard, TakesSmallDifferencesOfHeightForOneRow) {
  form.combo.setTop(form.drop.top() + 8 * 15);
  form.combo.setLeft(form.drop.left() - 15);
  const Events names = order();
  const auto combo = std::ranges::find(names, "ComboTexto");
  ASSERT_NE(combo, names.end());
  EXPECT_EQ(*std::next(combo), "CmbLista");
}

TEST_F(Keyboard, PassesByWhatLiesHiddenUnderThePages) {
  form.menu.place(form.pages.left() + 300, form.pages.top() + 600, 900,
                  300);  // defined before the pages, so behind them
  EXPECT_EQ(std::ranges::count(order(), "LblMenu"), 0);
  form.pages.setVisible(false);
  EXPECT_EQ(std::ranges::count(order(), "LblMenu"), 1);
}

TEST_F(Keyboard, OptionsAreOneStopAtTheChosenOne) {
  calls.run([this] { form.right.setValue(true); });
  const Events names = order();
  EXPECT_EQ(std::ranges::count(names, "OptDerecha"), 1);
  EXPECT_EQ(std::ranges::count(names, "OptIzquierda"), 0);
}

TEST_F(Keyboard, ArrowsChooseTheOptionThatTheyLeadTo) {
  widget(form.left).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&widget(form.left), Qt::Key_Right);
  EXPECT_EQ(form.take(), (Events{"right up"}));
  EXPECT_TRUE(form.right.value());
  EXPECT_EQ(window().focusWidget(), &widget(form.right));
  QTest::keyClick(&widget(form.right), Qt::Key_Down);
  EXPECT_EQ(form.take(), (Events{"left up"}));
  QTest::keyClick(&widget(form.left), Qt::Key_Up);
  EXPECT_EQ(form.take(), (Events{"right up"}));
  EXPECT_TRUE(widget<QRadioButton>(form.right).isChecked());
  EXPECT_FALSE(widget<QRadioButton>(form.left).isChecked());
}

TEST_F(Keyboard, AListBeginsWithItsFirstItem) {
  form.pages.setTab(1);
  for (const char* name : {"Lirio", "Álamo", "Haya"}) form.list.addItem(name);
  auto& list = widget<QListWidget>(form.list);
  list.setFocus(Qt::TabFocusReason);
  form.events.clear();
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(form.take(), (Events{"list click Lirio"}));
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(form.take(), (Events{"list click Álamo"}));
}

TEST_F(Keyboard, ADropDownListBeginsWithItsFirstItem) {
  for (const char* name : {"Lirio", "Álamo", "Haya"}) form.drop.addItem(name);
  auto& combo = widget<QComboBox>(form.drop);
  combo.showPopup();
  hands::settle();
  hands::press(*combo.view(), Qt::Key_Down);
  hands::press(*combo.view(), Qt::Key_Return);
  EXPECT_EQ(form.take(), (Events{"drop click Lirio"}));
}

TEST_F(Keyboard, EscapeClosesADropDownListAndPicksNothing) {
  for (const char* name : {"Lirio", "Álamo"}) form.drop.addItem(name);
  auto& combo = widget<QComboBox>(form.drop);
  combo.showPopup();
  hands::settle();
  ASSERT_TRUE(combo.view()->isVisible());
  QTest::keyClick(combo.view(), Qt::Key_Down);
  QTest::keyClick(combo.view(), Qt::Key_Escape);
  EXPECT_FALSE(combo.view()->isVisible());
  EXPECT_EQ(combo.currentIndex(), -1);
  EXPECT_EQ(form.take(), Events{});
}

TEST_F(Keyboard, DownLeadsFromATextBoxToWhatFollows) {
  widget(form.box).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&widget(form.box), Qt::Key_Down);
  EXPECT_EQ(window().focusWidget(), &widget(form.years));
}

TEST_F(Keyboard, EnterAndSpaceOpenAndCloseABranch) {
  forms::Node& unit = form.tree.add(nullptr, "Brisa");
  forms::Node& sex = form.tree.add(&unit, "Hombres");
  form.tree.add(&sex, "Población: 7");
  auto& tree = widget<QTreeWidget>(form.tree);
  tree.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(tree.selectedItems(), QList{tree.topLevelItem(0)});
  QTest::keyClick(&tree, Qt::Key_Return);
  EXPECT_TRUE(unit.expanded());
  QTest::keyClick(&tree, Qt::Key_Space);
  EXPECT_FALSE(unit.expanded());
  QTest::keyClick(&tree, Qt::Key_Asterisk);
  EXPECT_TRUE(unit.expanded());
  EXPECT_TRUE(sex.expanded());
}

TEST_F(Keyboard, F6GoesFromPartToPart) {
  form.popUp.setVisible(true);
  Events names;
  window().activateWindow();
  rowOf(form.pages).setFocus(Qt::TabFocusReason);
  for (int i = 0; i < 10; ++i) {
    QTest::keyClick(window().focusWidget(), Qt::Key_F6);
    names.push_back(window().focusWidget()->objectName().toStdString());
  }
  EXPECT_EQ(names, (Events{"Internet", "CmbLista", "ComboTexto", "txtTexto", "FichaAños", "Arbol", "BtnVer", "LblMenu",
                           "", "Internet"}));
  QTest::keyClick(window().focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(window().focusWidget(), &rowOf(form.pages));
}

TEST_F(Keyboard, F6GoesToAPaletteAndBack) {
  testing::TestForm palette(host, "frmTematicos");
  calls.run([&] { palette.show(); });
  hands::settle();
  FormWindow& selector = *host.windowOf(palette);
  QWidget& link = widget(form.menu);
  window().activateWindow();
  hands::settle();
  ASSERT_EQ(QApplication::activeWindow(), &window());
  link.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(nextPane(window(), &link, true)->window(), &selector);
  QTest::keyClick(&link, Qt::Key_F6);
  hands::settle();
  EXPECT_EQ(QApplication::activeWindow(), &selector);
  EXPECT_EQ(nextPane(selector, selector.focusWidget(), true), &rowOf(form.pages));
  EXPECT_EQ(nextPane(selector, selector.focusWidget(), false), &link);
  QTest::keyClick(selector.focusWidget(), Qt::Key_F6);
  hands::settle();
  EXPECT_EQ(QApplication::activeWindow(), &window());
  EXPECT_EQ(window().focusWidget(), &rowOf(form.pages));
}

TEST_F(Keyboard, ControlAndTabTurnThePages) {
  widget(form.drop).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&widget(form.drop), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(form.take(), (Events{"pages move", "pages click 0"}));
  EXPECT_EQ(window().focusWidget(), &rowOf(form.pages));
  QTest::keyClick(&rowOf(form.pages), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(form.take(), (Events{"pages click 1"}));
  QTest::keyClick(&rowOf(form.pages), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(form.pages.tab(), 1);  // around the end
}

TEST_F(Keyboard, ARingComesBackWithTheWindow) {
  QWidget& menu = widget(form.menu);
  const auto hasRing = [&menu] {
    const QImage picture = menu.grab().toImage();
    return picture.pixelColor(picture.width() / 2, 6) == theme::kAccent;
  };
  menu.setFocus(Qt::MouseFocusReason);
  EXPECT_FALSE(hasRing());
  menu.clearFocus();
  menu.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(hasRing());
  QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(&menu, &away);
  EXPECT_FALSE(hasRing());
  QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(&menu, &back);
  EXPECT_TRUE(hasRing());
}

TEST_F(Keyboard, EscapeClosesAPalette) {
  testing::TestForm palette(host, "frmTematicos");
  calls.run([&] { palette.show(); });
  QTest::keyClick(host.windowOf(palette), Qt::Key_Escape);
  hands::settle();
  EXPECT_EQ(palette.take(), (Events{"resize", "unload"}));
  EXPECT_FALSE(palette.isLoaded());
  EXPECT_TRUE(form.isLoaded());
}

}  // namespace
}  // namespace desktop

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "hosts/desktop/qt_host.h"
#include "hosts/desktop/test_files.h"
#include "hosts/desktop/test_form.h"
#include "hosts/desktop/user_hands.h"
#include "hosts/desktop/views/tab_row.h"

namespace desktop {
namespace {

using Events = std::vector<std::string>;

class ControlViews : public ::testing::Test {
 protected:
  void SetUp() override {
    calls.run([this] { form.show(); });
    hands::settle();
    form.events.clear();
  }
  void TearDown() override { host.closeAll(); }

  [[nodiscard]] FormWindow& window() { return *host.windowOf(form); }
  template <class Widget = QWidget>
  [[nodiscard]] Widget& widget(const forms::Control& control) {
    auto* found = qobject_cast<Widget*>(host.windowOf(form)->viewOf(control)->widget());
    EXPECT_NE(found, nullptr) << control.name();
    return *found;
  }
  [[nodiscard]] TabRow& rowOf(const forms::TabControl& tabs) { return *widget(tabs).findChild<TabRow*>(); }
  void clickTab(TabRow& row, int index) {
    QTest::mouseClick(&row, Qt::LeftButton, Qt::NoModifier, row.tabRect(index).center());
  }

  screen::ProgramCalls calls;
  motor::WidgetHandles handles;
  QTemporaryDir folder;
  QtHost host{calls, handles, folder.path().toStdString()};
  testing::TestForm form{host};
};

TEST_F(ControlViews, EveryKindButDialogsAndTimersHasAWidget) {
  for (const forms::Control* control : form.controls()) {
    const ControlView* view = window().viewOf(*control);
    const bool isSeenKind = control != &form.dialog && control != &form.clock;
    EXPECT_EQ(view != nullptr && view->widget() != nullptr, isSeenKind) << control->name();
  }
}

TEST_F(ControlViews, StandWhereTheModelPutsThem) {
  EXPECT_EQ(widget(form.drop).geometry(), QRect(320, 50, 200, 21));
  EXPECT_EQ(widget(form.tool).geometry(), QRect(10, 30, 24, 24));
  EXPECT_EQ(widget(form.tool).parentWidget(), &widget(form.pages));
  form.drop.place(15, 30, 1500, 600);
  EXPECT_EQ(widget(form.drop).geometry(), QRect(1, 2, 100, 40));
}

TEST_F(ControlViews, LieInTheOrderOfTheirDefinition) {
  const auto& siblings = window().children();
  EXPECT_LT(siblings.indexOf(&widget(form.shape)), siblings.indexOf(&widget(form.menu)));
  EXPECT_LT(siblings.indexOf(&widget(form.pages)), siblings.indexOf(&widget(form.popUp)));
}

TEST_F(ControlViews, AreSeenWithThePageThatHoldsThem) {
  EXPECT_TRUE(widget(form.tool).isVisible());
  EXPECT_FALSE(widget(form.list).isVisible());
  calls.run([this] { form.pages.setTab(1); });
  EXPECT_FALSE(widget(form.tool).isVisible());
  EXPECT_FALSE(widget(form.left).isVisible());
  EXPECT_TRUE(widget(form.list).isVisible());
  EXPECT_EQ(rowOf(form.pages).currentIndex(), 1);
  form.list.setVisible(false);
  EXPECT_FALSE(widget(form.list).isVisible());
}

TEST_F(ControlViews, TabControlTellsOfAnotherTabOnly) {
  clickTab(rowOf(form.pages), 1);
  clickTab(rowOf(form.pages), 1);
  EXPECT_EQ(form.take(), (Events{"pages click 0"}));
  EXPECT_TRUE(widget(form.list).isVisible());
  QTest::keyClick(&rowOf(form.pages), Qt::Key_Left);
  EXPECT_EQ(form.take(), (Events{"pages click 1"}));
}

TEST_F(ControlViews, PagesAreTurnedBeforeALongHandlerGoesOn) {
  bool listSeen = false;
  form.pages.Click.add([&](int) {
    form.bar.setValue(10);
    listSeen = widget(form.list).isVisible();
  });
  clickTab(rowOf(form.pages), 1);
  EXPECT_TRUE(listSeen);
}

TEST_F(ControlViews, TabStripTellsOfEveryPick) {
  auto& row = widget<TabRow>(form.years);
  clickTab(row, 2);
  clickTab(row, 2);
  EXPECT_EQ(form.take(), (Events{"years click 2001", "years click 2001"}));
  QTest::keyClick(&row, Qt::Key_Left);
  EXPECT_EQ(form.take(), (Events{"years click 2000"}));
}

TEST_F(ControlViews, DropDownListPicksAlsoTheItemChosen) {
  for (const char* name : {"Ávalos", "Brisa", "Ñorga"}) form.drop.addItem(name);
  auto& combo = widget<QComboBox>(form.drop);
  EXPECT_EQ(combo.count(), 3);
  EXPECT_EQ(combo.currentIndex(), -1);
  hands::pick(combo, 1);
  hands::pick(combo, 1);
  EXPECT_EQ(form.take(), (Events{"drop click Brisa", "drop click Brisa"}));
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(form.take(), (Events{"drop click Ñorga"}));
  form.drop.setListIndex(0);
  EXPECT_EQ(combo.currentText(), "Ávalos");
  form.drop.clear();
  EXPECT_EQ(combo.count(), 0);
}

TEST_F(ControlViews, EditableComboIsTypedInto) {
  form.combo.addItem("Hombres");
  form.combo.addItem("Mujeres");
  auto& combo = widget<QComboBox>(form.combo);
  QTest::keyClicks(&combo, "Ho");
  EXPECT_EQ(form.take(), (Events{"combo change H", "combo change Ho"}));
  EXPECT_EQ(form.combo.listIndex(), -1);
  hands::pick(combo, 1);
  EXPECT_EQ(form.take(), (Events{"combo click Mujeres"}));
  EXPECT_EQ(combo.currentText(), "Mujeres");
  QTest::keyClick(&combo, Qt::Key_Backspace);
  EXPECT_EQ(form.take(), (Events{"combo change Mujere"}));
  EXPECT_EQ(combo.count(), 2);
}

TEST_F(ControlViews, ListBoxTellsOfMouseAndKeys) {
  form.pages.setTab(1);
  for (const char* name : {"Lirio", "Álamo", "Haya"}) form.list.addItem(name);
  form.events.clear();
  auto& list = widget<QListWidget>(form.list);
  const auto click = [&](int row) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(row)).center());
  };
  click(1);
  click(1);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(form.take(), (Events{"list click Álamo", "list click Álamo", "list click Haya"}));
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(form.take(), Events{});
}

TEST_F(ControlViews, TextBoxTellsOfFocusAndEachCharacter) {
  auto& box = widget<QLineEdit>(form.box);
  window().activateWindow();
  box.setFocus();
  QTest::keyClicks(&box, "Áb");
  EXPECT_EQ(form.take(), (Events{"box focus", "box change Á", "box change Áb"}));
  // Back from a message, a menu or another program the user is where he was.
  for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
    QFocusEvent back(QEvent::FocusIn, reason);
    QApplication::sendEvent(&box, &back);
  }
  EXPECT_EQ(form.take(), Events{});
  form.box.setText("otro");
  EXPECT_EQ(box.text(), "otro");
}

TEST_F(ControlViews, OptionButtonsActOnRelease) {
  auto& left = widget<QRadioButton>(form.left);
  auto& right = widget<QRadioButton>(form.right);
  const QPoint middle = left.rect().center();
  QTest::mousePress(&left, Qt::LeftButton, Qt::NoModifier, middle);
  EXPECT_EQ(form.take(), Events{});
  QTest::mouseRelease(&left, Qt::LeftButton, Qt::NoModifier, middle);
  EXPECT_EQ(form.take(), (Events{"left up"}));
  QTest::keyClick(&right, Qt::Key_Space);
  EXPECT_EQ(form.take(), (Events{"right up"}));
  EXPECT_FALSE(left.isChecked());
  EXPECT_TRUE(right.isChecked());
  QTest::keyClick(&right, Qt::Key_Space);
  EXPECT_EQ(form.take(), (Events{"right up"}));
  EXPECT_TRUE(right.isChecked());
}

TEST_F(ControlViews, LabelsAndImagesAreClickedByMouseAndKeys) {
  for (const forms::Control* control :
       {static_cast<forms::Control*>(&form.menu), static_cast<forms::Control*>(&form.tool)}) {
    auto& button = widget<QAbstractButton>(*control);
    form.events.clear();
    button.click();
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    const std::string event = control == &form.menu ? "menu click" : "tool click";
    EXPECT_EQ(form.take(), (Events{event, event, event}));
  }
  calls.run([this] { form.menu.setEnabled(false); });
  QTest::mouseClick(&widget(form.menu), Qt::LeftButton);
  EXPECT_EQ(form.take(), Events{});
}

TEST_F(ControlViews, ThePointerIsReportedToWhatItIsOnAlone) {
  hands::pointAt(widget(form.menu));
  EXPECT_EQ(form.take(), (Events{"menu move"}));
  hands::pointAt(widget(form.tool));
  EXPECT_EQ(form.take(), (Events{"tool move"}));
  hands::pointAt(rowOf(form.pages));
  EXPECT_EQ(form.take(), (Events{"pages move"}));
  hands::pointAt(widget(form.plain));
  EXPECT_EQ(form.take(), Events{});
  QTest::mouseMove(&window(), QPoint(599, 499));
  hands::settle();
  EXPECT_EQ(form.take(), (Events{"form move"}));
}

TEST_F(ControlViews, TreeShowsNodesAndRemembersWhatTheUserOpens) {
  forms::Node& root = form.tree.add(nullptr, "Brisa", {.bold = true, .color = 0x800000});
  form.tree.add(&root, "Población: 1.234", {});
  auto& tree = widget<QTreeWidget>(form.tree);
  ASSERT_EQ(tree.topLevelItemCount(), 1);
  QTreeWidgetItem* item = tree.topLevelItem(0);
  EXPECT_TRUE(item->font(0).bold());
  EXPECT_EQ(item->foreground(0).color(), QColor(0, 0, 128));
  EXPECT_EQ(item->child(0)->text(0), "Población: 1.234");
  EXPECT_FALSE(item->isExpanded());
  root.setExpanded(true);
  EXPECT_TRUE(item->isExpanded());
  tree.setCurrentItem(item);
  QTest::keyClick(&tree, Qt::Key_Left);
  EXPECT_FALSE(root.expanded());
  form.tree.clear();
  EXPECT_EQ(tree.topLevelItemCount(), 0);
}

TEST_F(ControlViews, ATreeMadeAnewIsAsTheProgramOpensIt) {
  auto& tree = widget<QTreeWidget>(form.tree);
  const auto fill = [this] {
    form.tree.clear();
    forms::Node& root = form.tree.add(nullptr, "Brisa", {});
    form.tree.add(&form.tree.add(&root, "Hombres", {}), "Población: 1.234", {});
    root.setExpanded(true);
  };
  fill();
  QTreeWidgetItem* root = tree.topLevelItem(0);
  EXPECT_TRUE(root->isExpanded());
  tree.setCurrentItem(root->child(0));
  QTest::keyClick(&tree, Qt::Key_Right);
  EXPECT_TRUE(root->child(0)->isExpanded());
  fill();
  root = tree.topLevelItem(0);
  EXPECT_TRUE(root->isExpanded());
  EXPECT_FALSE(root->child(0)->isExpanded());
}

TEST_F(ControlViews, AVeilStaysUntilTheProgramLiftsIt) {
  calls.run([this] { form.veil.setVisible(true); });
  EXPECT_TRUE(widget(form.veil).isVisible());
  calls.run([this] { form.veil.setVisible(false); });
  EXPECT_FALSE(widget(form.veil).isVisible());
}

TEST_F(ControlViews, AnOpenListIsCappedAndWideEnough) {
  for (int i = 0; i < 60; ++i)
    form.drop.addItem("Una zona básica de salud con un nombre muy largo " + std::to_string(i));
  auto& combo = widget<QComboBox>(form.drop);
  combo.showPopup();
  hands::settle();
  EXPECT_LE(combo.view()->viewport()->height(), 15 * combo.view()->sizeHintForRow(0) + 4);
  EXPECT_GE(combo.view()->viewport()->width(), combo.view()->sizeHintForColumn(0));
  combo.hidePopup();
}

TEST_F(ControlViews, CommandButtonAndProgressBar) {
  QTest::mouseClick(&widget(form.button), Qt::LeftButton);
  EXPECT_EQ(form.take(), (Events{"button click"}));
  EXPECT_EQ(widget<QPushButton>(form.button).text(), "Ver mapa");
  form.bar.setValue(40);
  EXPECT_EQ(widget<QProgressBar>(form.bar).value(), 40);
}

TEST_F(ControlViews, BrowserShowsAPageAndSaysItsName) {
  testing::writeFile(folder.filePath("Tabla.html"),
                     "<html><head><title>Defunci\xF3n</title></head><body>a\xF1o</body></html>");
  form.browser.navigate(folder.path().toStdString() + "\\TABLA.HTML");
  EXPECT_EQ(form.browser.locationName(), "Defunción");
  EXPECT_EQ(widget<QTextBrowser>(form.browser).toPlainText(), "año");
  form.browser.navigate(folder.path().toStdString() + "\\Otra.html");
  EXPECT_EQ(form.browser.locationName(), "Otra.html");
}

TEST_F(ControlViews, BrowserShowsNothingFromOutsideTheApplicationFolder) {
  const QTemporaryDir other;
  testing::writeFile(other.filePath("Tablas/Tabla.html"), "<title>Fuera</title>");
  form.browser.navigate(other.path().toStdString() + "\\Tablas\\Tabla.html");
  EXPECT_EQ(form.browser.locationName(), "Tabla.html");
  EXPECT_TRUE(widget<QTextBrowser>(form.browser).toPlainText().startsWith(QStringLiteral("No se encuentra")));
}

TEST_F(ControlViews, TimerTicksWhileItIsEnabled) {
  QTest::qWait(60);
  EXPECT_EQ(form.take(), Events{});
  form.clock.setEnabled(true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !form.events.empty(); }, 1000));
  form.clock.setEnabled(false);
  form.events.clear();
  QTest::qWait(60);
  EXPECT_EQ(form.take(), Events{});
}

TEST_F(ControlViews, ATickWaitsForTheHandlerThatRuns) {
  form.clock.setEnabled(true);
  calls.run([this] {
    QTest::qWait(80);
    EXPECT_EQ(form.take(), Events{});
    form.clock.setEnabled(true);
  });
  EXPECT_EQ(form.take(), (Events{"tick"}));
}

// Counts the paint events of a widget.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

TEST_F(ControlViews, NoticesBarAndVeilArePaintedWhileAHandlerRuns) {
  Paints notice(widget(form.notice));
  Paints bar(widget(form.bar));
  Paints veil(widget(form.veil));
  calls.run([&] {
    form.notice.setVisible(true);
    EXPECT_GT(notice.count, 0);
    const int before = bar.count;
    form.bar.setValue(70);
    EXPECT_GT(bar.count, before);
    form.veil.setVisible(true);
    EXPECT_GT(veil.count, 0);
  });
}

TEST_F(ControlViews, HaveNamesForAssistiveTools) {
  EXPECT_EQ(widget(form.menu).accessibleName(), "Informes");
  EXPECT_EQ(widget(form.tool).accessibleName(), "Acercar");
  EXPECT_EQ(widget(form.drop).accessibleName(), "Provincia");
  form.menu.setCaption("Otros");
  EXPECT_EQ(widget(form.menu).accessibleName(), "Otros");
}

}  // namespace
}  // namespace desktop

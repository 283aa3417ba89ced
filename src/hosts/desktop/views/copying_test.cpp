#include "hosts/desktop/views/copying.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QListWidget>
#include <QMenu>
#include <QTreeWidget>

#include "atlas/queries/indicator_tree.h"
#include "hosts/desktop/shown_form.h"

namespace desktop {
namespace {

using testing::Events;

const QString kHeading = QStringLiteral("Año\tUnidad\tSexo\tTipo\tIndicador\tValor\n");
const QString kDeaths = QStringLiteral("\tBrisa\tHombres\tIndicadores generales\tFallecidos\t7\n");
const QString kPersons = QStringLiteral("\tBrisa\tMujeres\tIndicadores generales\tPoblación\t1.234\n");

class Copying : public testing::ShownForm {
 protected:
  void SetUp() override {
    ShownForm::SetUp();
    clipboard().setText(QStringLiteral("lo de antes"));
    forms::Node& unit = form.tree.add(nullptr, "Brisa", {.bold = true, .color = atlas::kNavyNode});
    forms::Node& men = form.tree.add(&unit, "Hombres", {.color = atlas::kSexNode});
    form.tree.add(&form.tree.add(&men, "Indicadores generales"), "Fallecidos: 7");
    forms::Node& women = form.tree.add(&unit, "Mujeres", {.color = atlas::kSexNode});
    form.tree.add(&form.tree.add(&women, "Indicadores generales"), "Población: 1.234");
    unit.setExpanded(true);
    calls.run([this] { form.pages.setTab(1); });
    for (const char* name : {"Lirio", "Álamo", "Haya"}) form.list.addItem(name);
    hands::settle();
    form.events.clear();
  }
  [[nodiscard]] static QClipboard& clipboard() { return *QApplication::clipboard(); }
  [[nodiscard]] QTreeWidget& tree() { return widget<QTreeWidget>(form.tree); }
  [[nodiscard]] QListWidget& list() { return widget<QListWidget>(form.list); }

  // Opens the context menu at an item, as the right button does, or at the current one, as the keyboard does.
  QMenu& openMenu(QAbstractItemView& view, QContextMenuEvent::Reason reason, QPoint at) {
    QWidget& hears = reason == QContextMenuEvent::Mouse ? *view.viewport() : static_cast<QWidget&>(view);
    QContextMenuEvent event(reason, at, hears.mapToGlobal(at));
    QCoreApplication::sendEvent(&hears, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    EXPECT_NE(menu, nullptr);
    return *menu;
  }
  [[nodiscard]] static Events textsOf(const QMenu& menu) {
    Events texts;
    for (const QAction* action : menu.actions()) {
      const std::string text = action->text().remove(QLatin1Char('&')).toStdString();
      texts.push_back(action->isEnabled() ? text : "(" + text + ")");
    }
    return texts;
  }
  static void choose(QMenu& menu, const char* text) {
    for (QAction* action : menu.actions()) {
      if (action->text().remove(QLatin1Char('&')) != QString::fromUtf8(text)) continue;
      menu.setActiveAction(action);
      QTest::keyClick(&menu, Qt::Key_Return);
      hands::settle();
      return;
    }
    FAIL() << text;
  }
};

TEST_F(Copying, SaysHowMuch) {
  EXPECT_EQ(copiedNotice(1), "Copiada 1 fila");
  EXPECT_EQ(copiedNotice(12345), "Copiadas 12.345 filas");
}

TEST_F(Copying, TakesTheChosenBranch) {
  QTest::keyClick(&tree(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard().text(), "lo de antes");
  tree().setCurrentItem(tree().topLevelItem(0)->child(0));
  QTest::keyClick(&tree(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard().text(), kHeading + kDeaths);
}

TEST_F(Copying, TakesTheWholeTree) {
  QTest::keyClick(&tree(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(clipboard().text(), kHeading + kDeaths + kPersons);
  form.tree.clear();
  QTest::keyClick(&tree(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(clipboard().text(), kHeading + kDeaths + kPersons);
}

TEST_F(Copying, IsInTheTreesMenu) {
  QTreeWidgetItem* women = tree().topLevelItem(0)->child(1);
  QMenu& menu = openMenu(tree(), QContextMenuEvent::Mouse, tree().visualItemRect(women).center());
  EXPECT_EQ(textsOf(menu), (Events{"Copiar", "Copiar todo", "", "Desplegar rama", "Plegar rama", "", "Desplegar todo",
                                   "Plegar todo"}));
  choose(menu, "Copiar");
  EXPECT_EQ(clipboard().text(), kHeading + kPersons);
  choose(openMenu(tree(), QContextMenuEvent::Keyboard, {}), "Copiar todo");
  EXPECT_EQ(clipboard().text(), kHeading + kDeaths + kPersons);
}

TEST_F(Copying, TheMenuOffersOnlyWhatCanBeDone) {
  EXPECT_EQ(textsOf(openMenu(tree(), QContextMenuEvent::Keyboard, {})),
            (Events{"(Copiar)", "Copiar todo", "", "(Desplegar rama)", "(Plegar rama)", "", "Desplegar todo",
                    "Plegar todo"}));
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  form.tree.clear();
  EXPECT_EQ(textsOf(openMenu(tree(), QContextMenuEvent::Mouse, {5, 5})),
            (Events{"(Copiar)", "(Copiar todo)", "", "(Desplegar rama)", "(Plegar rama)", "", "(Desplegar todo)",
                    "(Plegar todo)"}));
}

TEST_F(Copying, MenusOfOneTreeHaveDifferentAccessKeys) {
  const QMenu& menu = openMenu(tree(), QContextMenuEvent::Keyboard, {});
  QString keys;
  for (const QAction* action : menu.actions()) {
    if (action->isSeparator()) continue;
    const auto at = action->text().indexOf(QLatin1Char('&'));
    ASSERT_GE(at, 0) << action->text().toStdString();
    const QChar key = action->text().at(at + 1).toLower();
    EXPECT_FALSE(keys.contains(key)) << action->text().toStdString();
    keys += key;
  }
}

TEST_F(Copying, TheMenuOpensAndClosesAndTheProgramHearsOfIt) {
  const forms::Node& unit = *form.tree.roots().front();
  const forms::Node& men = *unit.children().front();
  tree().setCurrentItem(tree().topLevelItem(0)->child(0));
  choose(openMenu(tree(), QContextMenuEvent::Keyboard, {}), "Desplegar rama");
  EXPECT_TRUE(men.expanded());
  EXPECT_TRUE(men.children().front()->expanded());
  EXPECT_FALSE(unit.children().back()->expanded());
  choose(openMenu(tree(), QContextMenuEvent::Keyboard, {}), "Plegar rama");
  EXPECT_FALSE(men.expanded());
  choose(openMenu(tree(), QContextMenuEvent::Keyboard, {}), "Desplegar todo");
  EXPECT_TRUE(unit.children().back()->children().front()->expanded());
  EXPECT_TRUE(tree().topLevelItem(0)->child(1)->child(0)->isExpanded());
  choose(openMenu(tree(), QContextMenuEvent::Keyboard, {}), "Plegar todo");
  EXPECT_FALSE(unit.expanded());
  EXPECT_FALSE(tree().topLevelItem(0)->isExpanded());
}

TEST_F(Copying, TakesTheChosenNameOfAListOrAll) {
  QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard().text(), "lo de antes");
  list().setCurrentRow(1);
  QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard().text(), "Álamo");
  QTest::keyClick(&list(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(clipboard().text(), "Lirio\nÁlamo\nHaya");
  EXPECT_EQ(form.take(), Events{});
}

TEST_F(Copying, TheListsMenuIsAboutTheNamePointedAtAndPicksNothing) {
  const QPoint third = list().visualItemRect(list().item(2)).center();
  QTest::mouseClick(list().viewport(), Qt::RightButton, Qt::NoModifier, third);
  choose(openMenu(list(), QContextMenuEvent::Mouse, third), "Copiar");
  EXPECT_EQ(clipboard().text(), "Haya");
  EXPECT_TRUE(list().selectedItems().isEmpty());
  EXPECT_EQ(textsOf(openMenu(list(), QContextMenuEvent::Keyboard, {})), (Events{"(Copiar)", "Copiar todo"}));
  EXPECT_EQ(form.take(), Events{});
}

}  // namespace
}  // namespace desktop

#include "hosts/desktop/pop_up_menus.h"

#include <QDialog>
#include <QKeyEvent>

#include "hosts/desktop/shown_form.h"
#include "hosts/screen/pop_up_frames.h"

namespace desktop {
namespace {

using testing::Events;

// A form whose menu opens a pop-up frame as the program's does: closed by the form and by some of its controls.
class PopUps : public testing::ShownForm {
 protected:
  void SetUp() override {
    ShownForm::SetUp();
    form.menu.MouseMove.add([this] { form.popUp.setVisible(true); });
    form.MouseMove.add([this] { form.popUp.setVisible(false); });
    open();
  }
  void open() {
    hands::pointAt(widget(form.menu));
    ASSERT_TRUE(form.popUp.visible());
    form.events.clear();
  }
  [[nodiscard]] bool isOpen() { return widget(form.popUp).isVisible(); }
};

TEST_F(PopUps, StaysWhileThePointerIsOnItsEntries) {
  hands::pointAt(widget(form.entry));
  hands::pointAt(widget(form.popUp));
  hands::pointAt(widget(form.menu));
  EXPECT_TRUE(isOpen());
}

TEST_F(PopUps, ClosesWhereverElseThePointerIs) {
  for (forms::Control* control : std::initializer_list<forms::Control*>{
           &form.plain, &form.tree, &form.picture, &form.browser, &form.drop, &form.box, &form.years, &form.group}) {
    hands::pointAt(widget(*control));
    EXPECT_FALSE(isOpen()) << control->name();
    open();
  }
}

TEST_F(PopUps, ClosesOverTheMapThatLiesInItsPlace) {
  QWidget map(&widget(form.picture));
  map.resize(100, 50);
  map.show();
  QEnterEvent enter(QPointF(5, 5), map.mapTo(&window(), QPointF(5, 5)), map.mapToGlobal(QPointF(5, 5)));
  QCoreApplication::sendEvent(&map, &enter);
  EXPECT_FALSE(isOpen());
}

TEST_F(PopUps, LeavesWhatHasAHandlerOfItsOwnToIt) {
  hands::pointAt(widget(form.tool));
  EXPECT_EQ(form.take(), (Events{"tool move"}));
  EXPECT_TRUE(isOpen());
}

TEST_F(PopUps, ClosesWithEscapeWhereverTheKeyboardIs) {
  class Greedy : public QWidget {
   public:
    using QWidget::QWidget;

   protected:
    void keyPressEvent(QKeyEvent* event) override { event->accept(); }
  };
  Greedy greedy(&widget(form.picture));
  greedy.show();
  for (QWidget* place : std::initializer_list<QWidget*>{&greedy, &widget(form.drop), &widget(form.tree), &window()}) {
    place->setFocus();
    QTest::keyClick(place, Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    open();
  }
}

TEST_F(PopUps, ClosesWhenSomethingElseIsClicked) {
  QTest::mousePress(&widget(form.plain), Qt::LeftButton);
  EXPECT_FALSE(isOpen());
  open();
  QTest::mouseClick(&widget(form.entry), Qt::LeftButton);
  EXPECT_EQ(form.take(), (Events{"entry click"}));
}

TEST_F(PopUps, ClosesWhenThePointerLeavesTheWindow) {
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&window(), &leave);
  EXPECT_FALSE(isOpen());
}

TEST_F(PopUps, DoesNotStayBehindADialog) {
  QDialog dialog(&window());
  dialog.setModal(true);
  dialog.show();
  hands::settle();
  EXPECT_FALSE(isOpen());
}

TEST_F(PopUps, ClosesWhenTheKeyboardGoesElsewhere) {
  widget(form.entry).setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(isOpen());
  widget(form.drop).setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(isOpen());
}

TEST_F(PopUps, AClosedMenuAsksNothingOfTheProgram) {
  hands::pointAt(widget(form.plain));
  form.events.clear();
  hands::pointAt(widget(form.tree));
  EXPECT_EQ(form.take(), Events{});
}

// Two menus side by side, each opened by its own label.
class TwoMenus : public forms::Form {
 public:
  explicit TwoMenus(forms::Listener& listener) : Form(listener, "frmMenus") {
    for (auto* frame : {&firstFrame, &secondFrame}) frame->setVisible(false);
    firstEntry.putInto(firstFrame);
    secondEntry.putInto(secondFrame);
    endDefinition();
    first.MouseMove.add([this] { firstFrame.setVisible(true); });
    second.MouseMove.add([this] { secondFrame.setVisible(true); });
    MouseMove.add([this] {
      firstFrame.setVisible(false);
      secondFrame.setVisible(false);
    });
  }
  forms::Label first{*this, "LblUno"};
  forms::Label second{*this, "LblDos"};
  forms::Frame firstFrame{*this, "Uno"};
  forms::Frame secondFrame{*this, "Dos"};
  forms::Label firstEntry{*this, "E1"};
  forms::Label secondEntry{*this, "E2"};
};

TEST_F(PopUps, OneIsOpenAtATime) {
  TwoMenus menus(host);
  menus.show();
  screen::pointAt(menus.first);
  EXPECT_TRUE(menus.firstFrame.visible());
  screen::pointAt(menus.second);
  EXPECT_FALSE(menus.firstFrame.visible());
  EXPECT_TRUE(menus.secondFrame.visible());
  EXPECT_EQ(screen::openPopUps(menus), 1);
  menus.unload();
  hands::settle();
}

}  // namespace
}  // namespace desktop

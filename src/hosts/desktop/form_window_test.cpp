#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTreeWidget>

#include "hosts/desktop/focus_order.h"
#include "hosts/desktop/ports/qt_window_system.h"
#include "hosts/desktop/test_form.h"
#include "hosts/desktop/user_hands.h"
#include "hosts/desktop/window_placement.h"
#include "platform/programs.h"
#include "text/failure.h"

namespace desktop {
namespace {

using Events = std::vector<std::string>;

class FormWindows : public ::testing::Test {
 protected:
  void SetUp() override {
    host.setFirstSize({600, 500});
    calls.run([this] { form.show(); });
    hands::settle();
    form.events.clear();
  }
  void TearDown() override { host.closeAll(); }

  [[nodiscard]] FormWindow& window() { return *host.windowOf(form); }
  [[nodiscard]] QWidget& widget(const forms::Control& control) { return *window().viewOf(control)->widget(); }

  screen::ProgramCalls calls;
  motor::WidgetHandles handles;
  QtHost host{calls, handles};
  QtWindowSystem windows{host, handles};
  testing::TestForm form{host};
};

TEST_F(FormWindows, TheFormHasTheSizeOfTheWholeWindow) {
  const QSize whole = window().frameGeometry().size();
  EXPECT_EQ(form.width(), whole.width() * 15);
  EXPECT_EQ(form.height(), whole.height() * 15);
}

TEST_F(FormWindows, AResizeIsOneLayoutWithTheFrame) {
  window().resize(700, 400);
  window().resize(720, 420);
  hands::settle();
  EXPECT_EQ(form.take(), (Events{"resize"}));
  EXPECT_EQ(form.width(), window().frameGeometry().width() * 15);
  EXPECT_EQ(form.height(), window().frameGeometry().height() * 15);
}

TEST_F(FormWindows, MinimiseAndRestoreAreTold) {
  window().showMinimized();
  hands::settle();
  EXPECT_TRUE(form.isMinimized());
  window().showNormal();
  hands::settle();
  EXPECT_FALSE(form.isMinimized());
  EXPECT_EQ(form.take(), (Events{"resize", "resize"}));
}

TEST_F(FormWindows, ClosingUnloadsTheForm) {
  const QPointer<QWidget> shown(&window());
  shown->close();
  EXPECT_EQ(form.take(), (Events{"unload"}));
  EXPECT_FALSE(form.isLoaded());
  hands::settle();
  EXPECT_TRUE(shown.isNull());
  EXPECT_EQ(host.windowOf(form), nullptr);
}

TEST_F(FormWindows, APreparedWindowServesTheNextLoad) {
  testing::TestForm other(host, "frmOtra");
  host.prepare(other);
  hands::settle();
  EXPECT_EQ(host.windowOf(other), nullptr);
  EXPECT_EQ(QApplication::activeWindow(), &window());
  EXPECT_EQ(other.take(), Events{});

  other.Load.add([&] { other.plain.setCaption("Cargada"); });
  calls.run([&] { other.show(); });
  hands::settle();
  ASSERT_NE(host.windowOf(other), nullptr);
  EXPECT_TRUE(host.windowOf(other)->isVisible());
  EXPECT_EQ(host.windowOf(other)->size(), QSize(600, 500));
  EXPECT_EQ(qobject_cast<QLabel*>(host.windowOf(other)->viewOf(other.plain)->widget())->text(), "Cargada");

  host.windowOf(other)->close();
  hands::settle();
  calls.run([&] { other.show(); });
  EXPECT_TRUE(host.windowOf(other)->isVisible());
}

TEST_F(FormWindows, WithAPreparedWindowTheLastOneStillEndsTheHost) {
  testing::TestForm other(host, "frmOtra");
  host.prepare(other);
  bool ended = false;
  calls.ended = [&] { ended = true; };
  window().close();
  EXPECT_TRUE(ended);
}

TEST_F(FormWindows, TheLastWindowEndsTheHost) {
  bool ended = false;
  calls.ended = [&] { ended = true; };
  window().close();
  EXPECT_TRUE(ended);
}

TEST_F(FormWindows, APaletteGoesWithTheLastWindow) {
  testing::TestForm palette(host, "frmTematicos");
  calls.run([&] { palette.show(); });
  bool ended = false;
  calls.ended = [&] { ended = true; };
  window().close();
  hands::settle();
  EXPECT_FALSE(palette.isLoaded());
  EXPECT_EQ(palette.take().back(), "unload");
  EXPECT_TRUE(ended);
}

TEST_F(FormWindows, ADoubleClickReachesTheForm) {
  QTest::mouseDClick(&window(), Qt::LeftButton, Qt::NoModifier, QPoint(599, 499));
  EXPECT_EQ(form.take(), (Events{"double click"}));
}

TEST_F(FormWindows, EscapeTakesThePointerAway) {
  QTest::keyClick(&window(), Qt::Key_Escape);
  EXPECT_EQ(form.take(), (Events{"form move"}));
}

TEST_F(FormWindows, CaptionIsTheTitle) {
  EXPECT_EQ(window().windowTitle(), "Prueba");
  form.setCaption("Otra");
  EXPECT_EQ(window().windowTitle(), "Otra");
}

TEST_F(FormWindows, TabReachesEveryControlInReadingOrder) {
  form.popUp.setVisible(true);
  const std::vector<QWidget*> order = readingOrder(window());
  EXPECT_EQ(order.size(), 13);
  QWidget* at = nullptr;
  for (QWidget* each : order) {
    at = nextInReadingOrder(window(), at, true);
    EXPECT_EQ(at, each);
  }
  EXPECT_EQ(nextInReadingOrder(window(), at, true), order.front());
  EXPECT_EQ(nextInReadingOrder(window(), order.front(), false), order.back());
}

TEST_F(FormWindows, TheKeyboardOnAMenuEntryIsThePointerOnIt) {
  window().activateWindow();
  widget(form.menu).clearFocus();
  widget(form.menu).setFocus(Qt::TabFocusReason);
  EXPECT_EQ(form.take(), (Events{"menu move"}));
  widget(form.menu).clearFocus();
  widget(form.menu).setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(form.take(), Events{});
}

TEST_F(FormWindows, ArrowsGoFromAMenuEntryIntoItsFrame) {
  window().activateWindow();
  form.popUp.setVisible(true);
  widget(form.menu).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&widget(form.menu), Qt::Key_Down);
  EXPECT_EQ(window().focusWidget(), &widget(form.entry));
  QTest::keyClick(&widget(form.entry), Qt::Key_Return);
  EXPECT_EQ(form.take().back(), "entry click");
}

TEST_F(FormWindows, WindowSystemFindsShownFormsByTitle) {
  EXPECT_EQ(windows.find("Prueba"), handles.handleOf(window()));
  EXPECT_EQ(windows.find("prueba"), 0);
  form.hide();
  EXPECT_EQ(windows.find("Prueba"), 0);
}

TEST_F(FormWindows, WindowSystemPutsAWindowIntoAControl) {
  auto* map = new QWidget;
  windows.setParent(handles.handleOf(*map), form.picture.hWnd());
  EXPECT_EQ(map->parentWidget(), &widget(form.picture));
  EXPECT_TRUE(map->isVisible());
  windows.setParent(4711, form.picture.hWnd());
  windows.close(0);
}

TEST_F(FormWindows, WindowSystemClosesAForm) {
  windows.close(windows.find("Prueba"));
  EXPECT_FALSE(form.isLoaded());
}

TEST_F(FormWindows, AWindowMovesOnlyWhereTheFlagsLetIt) {
  window().move(40, 50);
  windows.setZOrder(form.hWnd(), platform::ZOrder::topmost, platform::kNoSize | platform::kNoMove);
  EXPECT_EQ(window().pos(), QPoint(40, 50));
  windows.setZOrder(form.hWnd(), platform::ZOrder::topmost, platform::kNoSize);
  EXPECT_EQ(window().pos(), QPoint(0, 0));
}

TEST_F(FormWindows, APaletteStaysInFrontOfTheWorkingWindow) {
  testing::TestForm palette(host, "frmTematicos");
  palette.show();
  EXPECT_EQ(host.windowOf(palette)->parentWidget(), &window());
  palette.setLeft(1500);
  palette.setTop(3000);
  EXPECT_EQ(host.windowOf(palette)->pos(), QPoint(100, 200));
  palette.unload();
}

TEST_F(FormWindows, APaletteKeepsItsSize) {
  testing::TestForm palette(host, "frmTematicos");
  palette.show();
  const QWidget& shown = *host.windowOf(palette);
  EXPECT_EQ(shown.size(), paletteSize(palette));
  EXPECT_EQ(shown.minimumSize(), shown.size());
  EXPECT_EQ(shown.maximumSize(), shown.size());
  EXPECT_FALSE(shown.windowFlags().testAnyFlags(Qt::WindowMinMaxButtonsHint));
  EXPECT_NE(window().maximumSize(), window().size()) << "the working window is the user's to size";
  palette.unload();
}

TEST(FirstPlace, UsesTheScreen) {
  const QRect hd(0, 0, 1920, 1040);
  EXPECT_EQ(firstPlace(screen::FormLook::window, {1024, 768}, hd).size(), QSize(1766, 957));
  EXPECT_EQ(firstPlace(screen::FormLook::splash, {480, 320}, hd), QRect(720, 360, 480, 320));
}

TEST(FirstPlace, LeavesRoomForTheFrameOnASmallScreen) {
  for (const QRect& screen : {QRect(0, 0, 1024, 768), QRect(0, 28, 1024, 740), QRect(0, 0, 1366, 768)}) {
    const QRect place = firstPlace(screen::FormLook::window, {1024, 768}, screen);
    EXPECT_TRUE(screen.contains(QRect(place.topLeft(), place.size() + QSize(16, 40)))) << screen.width();
    EXPECT_EQ(place.size().expandedTo(smallestSize(screen::FormLook::window)), place.size());
  }
}

TEST(FirstPlace, IsNeverTooSmallForWhatLiesInTheWindow) {
  EXPECT_EQ(firstPlace(screen::FormLook::window, {1024, 768}, QRect(0, 0, 640, 480)).size(),
            smallestSize(screen::FormLook::window));
}

TEST(FirstPlace, IsSeenWholeOnUsualScreens) {
  struct Case {
    QRect screen;  // without the desktop's own bars
    QSize size;
  };
  for (const Case& each : {Case{{0, 0, 1024, 768}, {1008, 728}}, Case{{0, 0, 1024, 728}, {1008, 688}},
                           Case{{0, 0, 1280, 760}, {1178, 720}}, Case{{0, 27, 1440, 873}, {1325, 803}},
                           Case{{66, 27, 1854, 1053}, {1706, 969}}, Case{{0, 0, 2560, 1400}, {2355, 1288}}}) {
    const QRect place = firstPlace(screen::FormLook::window, {1024, 768}, each.screen);
    EXPECT_EQ(place.size(), each.size) << each.screen.width();
    EXPECT_TRUE(each.screen.contains(QRect(place.topLeft(), place.size() + QSize(16, 40)))) << each.screen.width();
  }
}

TEST(PaletteSize, EndsALittleBeyondItsControls) {
  screen::ProgramCalls calls;
  motor::WidgetHandles handles;
  QtHost host(calls, handles);
  const testing::TestForm form(host, "frmTematicos");
  EXPECT_EQ(paletteSize(form), QSize(600 + 8, 460 + 8));
}

TEST(OnScreen, MovesNoFurtherThanNeeded) {
  const QRect screen(0, 30, 1000, 700);
  EXPECT_EQ(onScreen({100, 200}, {300, 100}, screen), QPoint(100, 200));
  EXPECT_EQ(onScreen({100, 660}, {300, 100}, screen), QPoint(100, 630));
  EXPECT_EQ(onScreen({900, 10}, {300, 100}, screen), QPoint(700, 30));
  EXPECT_EQ(onScreen({50, 50}, {1200, 900}, screen), QPoint(0, 30));
}

TEST(ScaleFor, MakesRoomForTheWindow) {
  EXPECT_EQ(scaleFor({1024, 768}), 1);
  EXPECT_EQ(scaleFor({1920, 1040}), 1);
  const double scale = scaleFor({960, 500});  // 1920 by 1000 at 200 %
  EXPECT_LT(scale, 1);
  EXPECT_GE(QSize(QSizeF(960, 500).toSize() / scale).height(), smallestSize(screen::FormLook::window).height());
  EXPECT_EQ(scaleFor({100, 100}), 0.5);
}

TEST(FirstSize, TheWorkingWindowCannotBeMadeTooSmall) {
  screen::ProgramCalls calls;
  motor::WidgetHandles handles;
  QtHost host(calls, handles);
  testing::TestForm form(host);
  form.show();
  host.windowOf(form)->resize(300, 200);
  hands::settle();
  EXPECT_EQ(host.windowOf(form)->size(), smallestSize(screen::FormLook::window));
  host.closeAll();
}

TEST(ProgramCallsTest, TheEndOfTheProgramStopsEverything) {
  screen::ProgramCalls calls;
  int ended = 0;
  calls.ended = [&] { ++ended; };
  bool later = false;
  calls.run([&] {
    calls.runWhenFree([&] { later = true; });
    throw platform::ProgramEnd{};
  });
  EXPECT_EQ(ended, 1);
  EXPECT_TRUE(calls.hasEnded());
  calls.run([&] { later = true; });
  EXPECT_FALSE(later);
}

TEST(ProgramCallsTest, AFailureWithoutATrapIsShown) {
  screen::ProgramCalls calls;
  std::string shown;
  calls.failed = [&](const std::string& description) { shown = description; };
  calls.run([] { throw failures::noObject(); });
  EXPECT_EQ(shown, failures::noObject().description());
  EXPECT_FALSE(calls.hasEnded());
}

TEST(ProgramCallsTest, WhatWaitsRunsAfterTheCall) {
  screen::ProgramCalls calls;
  std::string order;
  calls.returned = [&] { order += "r"; };
  calls.run([&] {
    calls.runWhenFree([&] { order += "b"; });
    calls.run([&] { order += "a"; });
    EXPECT_TRUE(calls.isBusy());
  });
  EXPECT_EQ(order, "arbr");
  EXPECT_FALSE(calls.isBusy());
}

}  // namespace
}  // namespace desktop

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

using MapWidgets = MapWidgetTest;

TEST_F(MapWidgets, AClickWithAButtonOfTheProgramCallsBack) {
  useOwnTool();
  EXPECT_EQ(widget_->cursor().shape(), Qt::CrossCursor);
  QTest::mouseClick(widget_, Qt::LeftButton, {}, {200, 150});
  ASSERT_EQ(calls_->calls.size(), 1U);
  const QStringList fields = QString::fromStdString(calls_->calls.front()).split(',');
  EXPECT_TRUE(fields[0].startsWith("Info MI:"));
  EXPECT_NEAR(fields[0].mid(8).toDouble(), -3, 0.02);
  EXPECT_NEAR(fields[1].toDouble(), 41.5, 0.02);
  EXPECT_EQ(fields[2] + fields[3], "FF");
}

TEST_F(MapWidgets, ModifiersReachTheCallback) {
  useOwnTool();
  QTest::mouseClick(widget_, Qt::LeftButton, Qt::ShiftModifier, {200, 150});
  QTest::mouseClick(widget_, Qt::LeftButton, Qt::ControlModifier, {200, 150});
  ASSERT_EQ(calls_->calls.size(), 2U);
  EXPECT_EQ(QString::fromStdString(calls_->calls[0]).split(',').mid(2, 2).join(""), "TF");
  EXPECT_EQ(QString::fromStdString(calls_->calls[1]).split(',').mid(2, 2).join(""), "FT");
}

TEST_F(MapWidgets, DraggingWithAButtonOfTheProgramDoesNothing) {
  useOwnTool();
  const Point before = map().centre;
  drag(Qt::LeftButton, {200, 150}, {60, 0});
  EXPECT_EQ(map().centre, before);
  EXPECT_TRUE(calls_->calls.empty());
}

TEST_F(MapWidgets, TheMapGoesAlongWithWhoeverDragsIt) {
  struct Case {
    const char* what;
    const char* statement;
    Qt::MouseButton button;
    bool space;
  };
  for (const Case& c : {Case{"grabber", "run menu command 1702", Qt::LeftButton, false},
                        Case{"middle button", "run menu command 1701", Qt::MiddleButton, false},
                        Case{"space bar", "run menu command 1701", Qt::LeftButton, true}}) {
    session_->run(c.statement);
    const Point grabbed = map().toMap({200, 150});
    if (c.space) QTest::keyPress(widget_, Qt::Key_Space);
    drag(c.button, {200, 150}, {40, -30});
    if (c.space) QTest::keyRelease(widget_, Qt::Key_Space);
    EXPECT_NEAR(map().toPixel(grabbed).x, 240, 1e-6) << c.what;
    EXPECT_NEAR(map().toPixel(grabbed).y, 120, 1e-6) << c.what;
  }
}

TEST_F(MapWidgets, TheWheelZoomsAroundThePointer) {
  const Point under = map().toMap({300, 80});
  const double before = map().zoomMetres;
  turnWheel({300, 80}, 120);
  EXPECT_LT(map().zoomMetres, before);
  EXPECT_NEAR(map().toPixel(under).x, 300, 1e-6);
  EXPECT_NEAR(map().toPixel(under).y, 80, 1e-6);
  turnWheel({300, 80}, -120);
  EXPECT_NEAR(map().zoomMetres, before, before * 0.02);
}

TEST_F(MapWidgets, TheWheelStopsAtAHouseAndAtSomeTimesTheWholeMap) {
  session_->run("set map zoom entire");
  const double entire = map().zoomMetres;
  for (int turn = 0; turn < 200; ++turn) turnWheel({300, 80}, -120);
  EXPECT_NEAR(map().zoomMetres, 4 * entire, 1);
  const Point centre = map().centre;
  turnWheel({300, 80}, -120);
  EXPECT_EQ(map().centre, centre) << "nothing moves at the end";
  for (int turn = 0; turn < 200; ++turn) turnWheel({300, 80}, 120);
  EXPECT_NEAR(map().zoomMetres, 50, 1e-6);
}

TEST_F(MapWidgets, TheWholeMapStaysWholeWhenTheWindowChangesItsShape) {
  session_->run("set map zoom entire");
  const double first = map().zoomMetres;
  for (const QSize size : {QSize(900, 200), QSize(200, 700), QSize(400, 300)}) {
    widget_->resize(size);
    widget_->reportSize();
    const Box seen = map().visibleBox();
    EXPECT_TRUE(seen.contains({-6, 40}) && seen.contains({0, 43})) << size.width();
    const double across = 6 / (seen.maxX - seen.minX);
    const double down = 3 / (seen.maxY - seen.minY);
    EXPECT_NEAR(std::max(across, down), 1 / 1.04, 0.02) << "no larger than needed";
  }
  EXPECT_NEAR(map().zoomMetres, first, first * 1e-6);
}

TEST_F(MapWidgets, AHairlineTellsWhereTheMapEnds) {
  session_->run("Set Map Zoom 40000 Units \"km\"");
  const QImage image = widget_->grab().toImage();
  EXPECT_EQ(image.pixelColor(5, 100), QColor(Qt::white));
  for (const QPoint edge : {QPoint(0, 100), QPoint(399, 100), QPoint(200, 0), QPoint(200, 299)}) {
    EXPECT_NE(image.pixelColor(edge), QColor(Qt::white)) << edge.x() << " " << edge.y();
  }
}

TEST_F(MapWidgets, OnlyTheKeyboardsFocusIsShown) {
  QWidget frame;
  frame.resize(500, 400);
  QWidget before(&frame);
  before.setFocusPolicy(Qt::StrongFocus);
  widget_->setParent(&frame);
  frame.show();
  frame.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
  QPalette colours = frame.palette();
  colours.setColor(QPalette::Highlight, Qt::magenta);
  frame.setPalette(colours);
  const auto isRinged = [&] { return widget_->grab().toImage().pixelColor(0, 100) == QColor(Qt::magenta); };
  widget_->setFocus(Qt::MouseFocusReason);
  EXPECT_FALSE(isRinged());
  before.setFocus(Qt::TabFocusReason);
  widget_->setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(isRinged());
  before.setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(isRinged());
  widget_->setParent(nullptr);
}

TEST_F(MapWidgets, AnExposeWithoutChangeCopiesThePicture) {
  (void)widget_->grab();
  EXPECT_EQ(widget_->renderCount(), 1);
  (void)widget_->grab();
  (void)widget_->grab();
  EXPECT_EQ(widget_->renderCount(), 1);
  session_->run("Set Map Zoom 400 Units \"km\"");
  (void)widget_->grab();
  EXPECT_EQ(widget_->renderCount(), 2);
  widget_->resize(500, 300);
  widget_->reportSize();
  (void)widget_->grab();
  EXPECT_EQ(widget_->renderCount(), 3);
}

TEST_F(MapWidgets, TheWheelScalesThePictureAtOnceAndPaintsItAnewWhenItRests) {
  const QImage before = widget_->grab().toImage();
  turnWheel({200, 150}, 240);
  const QImage scaled = widget_->grab().toImage();
  EXPECT_EQ(widget_->renderCount(), 1);
  EXPECT_NE(scaled, before);
  QTest::qWait(300);
  const QImage sharp = widget_->grab().toImage();
  EXPECT_EQ(widget_->renderCount(), 2);
  // The same part of the world: the picture's middle has the fill of both.
  EXPECT_EQ(sharp.pixel(200, 140), scaled.pixel(200, 140));
}

TEST_F(MapWidgets, WhatTheWheelUncoversIsPaintedAtOnce) {
  session_->run("Set Map Zoom 200 Units \"km\"");
  (void)widget_->grab();
  turnWheel({200, 150}, -240);
  const QImage image = widget_->grab().toImage();
  EXPECT_EQ(widget_->renderCount(), 2);
  EXPECT_NE(image.pixelColor(20, 20), QColor(Qt::white)) << "the map reaches beyond what was seen before";
}

TEST_F(MapWidgets, KeysMoveAndZoom) {
  const Point centre = map().centre;
  const double zoom = map().zoomMetres;
  QTest::keyClick(widget_, Qt::Key_Right);
  EXPECT_GT(map().centre.x, centre.x);
  QTest::keyClick(widget_, Qt::Key_Left);
  EXPECT_NEAR(map().centre.x, centre.x, 1e-9);
  QTest::keyClick(widget_, Qt::Key_Up);
  EXPECT_GT(map().centre.y, centre.y);
  QTest::keyClick(widget_, Qt::Key_Plus);
  EXPECT_LT(map().zoomMetres, zoom);
  QTest::keyClick(widget_, Qt::Key_Home);
  const Box seen = map().visibleBox();
  EXPECT_TRUE(seen.contains({-6, 40}) && seen.contains({0, 43}));
  EXPECT_NEAR(map().centre.x, -3, 1e-6);
}

TEST_F(MapWidgets, TheShortcutMenuReportsWhatWasChosen) {
  session_->run(
      "Create Menu \"MapperShortcut\" ID 17 as \"&Ver Toda la Capa...\" calling 807,"
      "\"&Quitar Selección...\" calling OLE \"borraseleccion\"");
  QContextMenuEvent event(QContextMenuEvent::Mouse, {10, 10}, widget_->mapToGlobal(QPoint(10, 10)));
  QApplication::sendEvent(widget_, &event);
  auto* menu = widget_->findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 2);
  EXPECT_EQ(menu->actions()[1]->text(), QStringLiteral("&Quitar Selección..."));
  menu->actions()[1]->trigger();
  ASSERT_EQ(calls_->calls.size(), 1U);
  EXPECT_EQ(calls_->calls.front().substr(0, 15), "borraseleccion ");
  menu->actions()[0]->trigger();
  EXPECT_NE(widget_->findChild<QDialog*>(), nullptr) << "asks for the layer";
  menu->close();
}

TEST_F(MapWidgets, TheMenuKeyOpensTheShortcutMenuToo) {
  session_->run("Create Menu \"MapperShortcut\" ID 17 as \"&Quitar Selección...\" calling OLE \"borraseleccion\"");
  widget_->show();
  const QPoint middle = widget_->rect().center();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, widget_->mapToGlobal(middle));
  QApplication::sendEvent(widget_, &event);
  auto* menu = widget_->findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Return);
  ASSERT_EQ(calls_->calls.size(), 1U);
  EXPECT_EQ(calls_->calls.front(), "borraseleccion MI:,,,,,,,1");
}

TEST_F(MapWidgets, AMapWithoutAShortcutMenuOpensNone) {
  QContextMenuEvent event(QContextMenuEvent::Mouse, {10, 10}, widget_->mapToGlobal(QPoint(10, 10)));
  QApplication::sendEvent(widget_, &event);
  EXPECT_EQ(widget_->findChild<QMenu*>(), nullptr);
}

TEST_F(MapWidgets, CtrlCCopiesTheMap) {
  QTest::keyClick(widget_, Qt::Key_C, Qt::ControlModifier);
  const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
  ASSERT_NE(copied, nullptr);
  EXPECT_TRUE(copied->hasImage());
  EXPECT_EQ(qvariant_cast<QImage>(copied->imageData()).size(), QSize(800, 600));
  QGuiApplication::clipboard()->clear();
}

TEST_F(MapWidgets, EveryToolAndButtonHasItsCursor) {
  struct Case {
    const char* statements;
    Qt::CursorShape shape;
  };
  for (const Case& c :
       {Case{"run menu command 1701", Qt::ArrowCursor}, Case{"run menu command 1702", Qt::OpenHandCursor},
        Case{"run menu command 1705", Qt::BitmapCursor}, Case{"run menu command 1706", Qt::BitmapCursor},
        Case{"run menu command 1707", Qt::WhatsThisCursor}, Case{"run menu command 1708", Qt::PointingHandCursor},
        Case{"run menu command 1710", Qt::CrossCursor}, Case{"run menu command 1734", Qt::DragCopyCursor},
        Case{"Create ButtonPad \"B\" As ToolButton ID 5 Cursor 138 Calling OLE \"a\" run menu command ID 5",
             Qt::CrossCursor},
        Case{"Create ButtonPad \"B\" As ToolButton ID 5 Cursor 139 Calling OLE \"a\" run menu command ID 5",
             Qt::ForbiddenCursor},
        Case{"Create ButtonPad \"B\" As ToolButton ID 5 Cursor 129 Calling OLE \"a\" run menu command ID 5",
             Qt::BitmapCursor}}) {
    session_->run(c.statements);
    EXPECT_EQ(widget_->cursor().shape(), c.shape) << c.statements;
  }
}

TEST_F(MapWidgets, TheGrabberClosesItsHandAndEscapePutsTheMapBack) {
  session_->run("run menu command 1702");
  const Point centre = map().centre;
  pull({200, 150}, {260, 150});
  EXPECT_EQ(widget_->cursor().shape(), Qt::ClosedHandCursor);
  EXPECT_LT(map().centre.x, centre.x);
  QTest::keyClick(widget_, Qt::Key_Escape);
  EXPECT_NEAR(map().centre.x, centre.x, 1e-9);
  EXPECT_EQ(widget_->cursor().shape(), Qt::OpenHandCursor);
  moveTo({300, 150}, Qt::LeftButton);
  EXPECT_NEAR(map().centre.x, centre.x, 1e-9) << "the drag is over";
  QTest::mouseRelease(widget_, Qt::LeftButton, {}, {300, 150});
}

// Whatever the callback does to the tool, the gesture that it came from is over.
TEST_F(MapWidgets, ACallbackMayChooseAnotherTool) {
  useOwnTool();
  calls_->whenCalled = [&] { session_->run("run menu command 1710"); };
  click({200, 150});
  EXPECT_EQ(widget_->cursor().shape(), Qt::CrossCursor);
  EXPECT_EQ(widget_->tool().tool().command, 1710);
  calls_->whenCalled = [&] { session_->run("end mapinfo"); };
  useOwnTool();
  click({200, 150});
  EXPECT_EQ(widget_->mapWindow(), nullptr);
  EXPECT_EQ(calls_->calls.size(), 2U);
}

TEST_F(MapWidgets, AToolThatIsChangedMeanwhileDoesNotFinishTheDrag) {
  session_->run("run menu command 1705");
  const double zoom = map().zoomMetres;
  pull({100, 100}, {200, 180});
  session_->run("run menu command 1701");
  QTest::mouseRelease(widget_, Qt::LeftButton, {}, {200, 180});
  EXPECT_EQ(map().zoomMetres, zoom);
  EXPECT_EQ(session_->eval("SelectionInfo(3)").text(), "0");
}

}  // namespace
}  // namespace motor

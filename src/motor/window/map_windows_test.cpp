#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPrinter>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "motor/session/session.h"
#include "motor/session/tiny_study.h"
#include "motor/window/map_printing.h"
#include "motor/window/qt_windows.h"

namespace motor {
namespace {

class RecordedCalls : public platform::CallbackObject {
 public:
  [[nodiscard]] std::string className() const override { return "Calls"; }
  bool invoke(const std::string& method, const std::string& message) override {
    calls.push_back(method + " " + message);
    return true;
  }
  std::vector<std::string> calls;
};

// The tiny study's year map in a real window, 400 by 300 pixels large.
class MapWindows : public ::testing::Test {
 protected:
  MapWindows() {
    const std::filesystem::path workspace = tiny::writeYear(folder_.path(), "2001");
    SessionOptions options;
    options.roots = {folder_.path()};
    session_ = std::make_unique<Session>(windows_, options);
    session_->setCallback(calls_);
    session_->run("run application \"" + workspace.string() + "\"");
    widget_ = windows_.widgetOf(window());
    widget_->resize(400, 300);
    widget_->reportSize();
  }

  [[nodiscard]] MapWindow& window() const { return *session_->mapWindows().front(); }
  [[nodiscard]] const Map& map() const { return window().map(); }

  void useOwnTool() {
    session_->run("Create Buttonpad \"Callback\" As Toolbutton ID 2001 DrawMode 34 Cursor 138 Calling OLE \"Info\"");
    session_->run("run menu command ID 2001");
  }

  void drag(Qt::MouseButton button, QPoint from, QPoint by) {
    QTest::mousePress(widget_, button, {}, from);
    const QPointF to = from + by;
    QMouseEvent move(QEvent::MouseMove, to, widget_->mapToGlobal(to), Qt::NoButton, button, {});
    QApplication::sendEvent(widget_, &move);
    QTest::mouseRelease(widget_, button, {}, from + by);
  }

  void turnWheel(QPointF at, int angle) {
    QWheelEvent event(at, widget_->mapToGlobal(at), {}, {0, angle}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget_, &event);
  }

  tiny::Folder folder_;
  WidgetHandles handles_;
  QtWindows windows_{handles_};
  std::shared_ptr<RecordedCalls> calls_ = std::make_shared<RecordedCalls>();
  std::unique_ptr<Session> session_;
  QPointer<MapWidget> widget_;
};

TEST_F(MapWindows, ANewMapIsHiddenAndKnownByItsHandle) {
  EXPECT_FALSE(widget_->isVisible());
  EXPECT_EQ(widget_->parentWidget(), nullptr);
  EXPECT_EQ(handles_.widget(window().handle()), widget_);
  EXPECT_EQ(session_->eval("WindowInfo(WindowID(1), 12)").text(), std::to_string(window().handle()));
  EXPECT_EQ(widget_->accessibleName(), "Mapa");
}

TEST_F(MapWindows, AClickWithAButtonOfTheProgramCallsBack) {
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

TEST_F(MapWindows, ModifiersReachTheCallback) {
  useOwnTool();
  QTest::mouseClick(widget_, Qt::LeftButton, Qt::ShiftModifier, {200, 150});
  QTest::mouseClick(widget_, Qt::LeftButton, Qt::ControlModifier, {200, 150});
  ASSERT_EQ(calls_->calls.size(), 2U);
  EXPECT_EQ(QString::fromStdString(calls_->calls[0]).split(',').mid(2, 2).join(""), "TF");
  EXPECT_EQ(QString::fromStdString(calls_->calls[1]).split(',').mid(2, 2).join(""), "FT");
}

TEST_F(MapWindows, DraggingWithAButtonOfTheProgramDoesNothing) {
  useOwnTool();
  const Point before = map().centre;
  drag(Qt::LeftButton, {200, 150}, {60, 0});
  EXPECT_EQ(map().centre, before);
  EXPECT_TRUE(calls_->calls.empty());
}

TEST_F(MapWindows, TheMapGoesAlongWithWhoeverDragsIt) {
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

TEST_F(MapWindows, TheWheelZoomsAroundThePointer) {
  const Point under = map().toMap({300, 80});
  const double before = map().zoomMetres;
  turnWheel({300, 80}, 120);
  EXPECT_LT(map().zoomMetres, before);
  EXPECT_NEAR(map().toPixel(under).x, 300, 1e-6);
  EXPECT_NEAR(map().toPixel(under).y, 80, 1e-6);
  turnWheel({300, 80}, -120);
  EXPECT_NEAR(map().zoomMetres, before, before * 0.02);
}

TEST_F(MapWindows, TheWheelStopsAtAHouseAndAtSomeTimesTheWholeMap) {
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

TEST_F(MapWindows, TheWholeMapStaysWholeWhenTheWindowChangesItsShape) {
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

TEST_F(MapWindows, AHairlineTellsWhereTheMapEnds) {
  session_->run("Set Map Zoom 40000 Units \"km\"");
  const QImage image = widget_->grab().toImage();
  EXPECT_EQ(image.pixelColor(5, 100), QColor(Qt::white));
  for (const QPoint edge : {QPoint(0, 100), QPoint(399, 100), QPoint(200, 0), QPoint(200, 299)}) {
    EXPECT_NE(image.pixelColor(edge), QColor(Qt::white)) << edge.x() << " " << edge.y();
  }
}

TEST_F(MapWindows, OnlyTheKeyboardsFocusIsShown) {
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

TEST_F(MapWindows, AnExposeWithoutChangeCopiesThePicture) {
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

TEST_F(MapWindows, TheWheelScalesThePictureAtOnceAndPaintsItAnewWhenItRests) {
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

TEST_F(MapWindows, WhatTheWheelUncoversIsPaintedAtOnce) {
  session_->run("Set Map Zoom 200 Units \"km\"");
  (void)widget_->grab();
  turnWheel({200, 150}, -240);
  const QImage image = widget_->grab().toImage();
  EXPECT_EQ(widget_->renderCount(), 2);
  EXPECT_NE(image.pixelColor(20, 20), QColor(Qt::white)) << "the map reaches beyond what was seen before";
}

TEST_F(MapWindows, KeysMoveAndZoom) {
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

TEST_F(MapWindows, AMaximizedMapFillsTheWindowItLiesIn) {
  QWidget frame;
  frame.resize(640, 420);
  widget_->setParent(&frame);
  session_->run("set window " + std::to_string(window().id()) + "Max");
  EXPECT_EQ(widget_->geometry(), QRect(0, 0, 640, 420));
  EXPECT_EQ(map().pixelWidth, 640);
  frame.show();
  frame.resize(320, 200);
  EXPECT_EQ(widget_->size(), QSize(320, 200));
  EXPECT_EQ(map().pixelHeight, 200);
  QWidget other;
  other.resize(222, 111);
  widget_->setParent(&other);
  EXPECT_EQ(widget_->size(), QSize(222, 111));
  widget_->setParent(nullptr);
}

TEST_F(MapWindows, EndingTheSessionTakesItsWindowsAway) {
  const std::int64_t handle = window().handle();
  widget_->show();
  session_.reset();
  (void)widget_->grab();  // a last expose finds no map
  EXPECT_FALSE(widget_->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(widget_.isNull());
  EXPECT_EQ(handles_.widget(handle), nullptr);
}

TEST_F(MapWindows, TheShortcutMenuReportsWhatWasChosen) {
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
  session_->run("Set Map Zoom 10 Units \"km\"");
  menu->actions()[0]->trigger();
  EXPECT_TRUE(map().visibleBox().contains({-6, 40}));
  menu->close();
}

TEST_F(MapWindows, TheLegendHasAWindowOfItsOwn) {
  QWidget frame;
  const std::int64_t parent = handles_.handleOf(frame);
  windows_.showLegend(window(), parent, 20, 30);
  const auto* legend = frame.findChild<LegendWindow*>();
  ASSERT_NE(legend, nullptr);
  EXPECT_EQ(legend->windowTitle(), "Leyenda");
  EXPECT_TRUE(legend->isVisible());
  windows_.hideLegend();
  EXPECT_EQ(frame.findChild<LegendWindow*>(), nullptr);
}

TEST_F(MapWindows, TheLegendStaysOnTheScreenAndAboveItsParent) {
  QWidget frame;
  frame.show();
  const std::int64_t parent = handles_.handleOf(frame);
  const QRect screen = frame.screen()->availableGeometry();
  windows_.showLegend(window(), parent, 20000, 20000);
  auto* legend = frame.findChild<LegendWindow*>();
  EXPECT_TRUE(screen.contains(legend->frameGeometry())) << "it was put far outside";
  EXPECT_EQ(legend->windowFlags() & Qt::WindowType_Mask, Qt::Tool);
  EXPECT_EQ(legend->parentWidget(), &frame);
  windows_.showLegend(window(), parent, 20, 30);
  EXPECT_EQ(frame.findChild<LegendWindow*>(), legend);
  EXPECT_EQ(legend->pos(), frame.mapToGlobal(QPoint(20, 30)));
}

TEST_F(MapWindows, TheLegendFollowsTheThemes) {
  QWidget frame;
  session_->run("Set Window Legend Parent " + std::to_string(handles_.handleOf(frame)));
  session_->run("open window legend");
  const auto* legend = frame.findChild<LegendWindow*>();
  const QSize layers = legend->size();
  session_->run("shade 1 with Nombre values \"a\" Brush (2,1), \"b\" Brush (2,2), \"c\" Brush (2,3)");
  const QSize themed = legend->size();
  EXPECT_NE(themed, layers);
  session_->run("set legend layer 1 title \"Un título más largo que todo lo demás que hay\"");
  EXPECT_GT(legend->width(), themed.width());
  session_->run("set map layer 1 display off");
  EXPECT_NE(legend->size(), themed);
}

// As many lines as no screen is high: what does not fit is scrolled to.
TEST_F(MapWindows, ALegendThatIsTooTallScrolls) {
  QWidget frame;
  std::string shade = "shade 1 with Nombre values \"v0\" Brush (2,1)";
  for (int i = 1; i < 200; ++i) shade += ", \"v" + std::to_string(i) + "\" Brush (2," + std::to_string(i) + ")";
  session_->run(shade);
  windows_.showLegend(window(), handles_.handleOf(frame), 0, 0);
  const auto* legend = frame.findChild<LegendWindow*>();
  EXPECT_LE(legend->height(), frame.screen()->availableGeometry().height());
  EXPECT_GT(legend->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(legend->horizontalScrollBar()->maximum(), 0);
}

TEST_F(MapWindows, TheLegendIsThatOfTheMapInFront) {
  QWidget frame;
  session_->run("Set Window Legend Parent " + std::to_string(handles_.handleOf(frame)));
  session_->run("open window legend");
  EXPECT_TRUE(frame.findChild<LegendWindow*>()->shows(window()));
  session_->run("Map From Provincias2001");
  const MapWindow& second = *session_->mapWindows().back();
  EXPECT_TRUE(frame.findChild<LegendWindow*>()->shows(second));
  session_->run("Close Window FrontWindow()");
  ASSERT_NE(frame.findChild<LegendWindow*>(), nullptr);
  EXPECT_TRUE(frame.findChild<LegendWindow*>()->shows(window()));
}

TEST_F(MapWindows, TheSessionHearsOfALegendThatTheUserCloses) {
  QWidget frame;
  session_->run("Set Window Legend Parent " + std::to_string(handles_.handleOf(frame)));
  session_->run("Open Window Legend");
  auto* legend = frame.findChild<LegendWindow*>();
  ASSERT_NE(legend, nullptr);
  EXPECT_EQ(session_->eval("windowinfo(1009,12)").text(), std::to_string(handles_.handleOf(*legend)));
  EXPECT_EQ(session_->eval("windowinfo(1009,11)").text(), "T");
  legend->close();
  EXPECT_EQ(session_->eval("windowinfo(1009,11)").text(), "F");
  EXPECT_EQ(session_->eval("windowinfo(1009,12)").text(), "0");
  session_->run("Open Window Legend");
  EXPECT_TRUE(frame.findChild<LegendWindow*>()->isVisible());
  EXPECT_EQ(session_->eval("windowinfo(1009,11)").text(), "T");
  session_->run("Close Window Legend");
}

TEST_F(MapWindows, PrintsTheMapOnAPage) {
  const QString file = QString::fromStdString((folder_.path() / "mapa.pdf").string());
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(file);
  printMap(printer, map());
  EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
  EXPECT_GT(std::filesystem::file_size(file.toStdString()), 1000U);
}

TEST_F(MapWindows, CommandsWithoutAWindowOfTheirOwnAreNotTaken) {
  EXPECT_FALSE(windows_.command(window(), 801));
  session_->run("Set Map Zoom 10 Units \"km\"");
  EXPECT_TRUE(windows_.command(window(), 807));
  EXPECT_TRUE(map().visibleBox().contains({-6, 40}));
}

TEST(WidgetHandles, AreStableAndForgetWidgetsThatAreGone) {
  WidgetHandles handles;
  auto widget = std::make_unique<QWidget>();
  QWidget other;
  const std::int64_t handle = handles.handleOf(*widget);
  EXPECT_NE(handle, 0);
  EXPECT_EQ(handles.handleOf(*widget), handle);
  EXPECT_NE(handles.handleOf(other), handle);
  EXPECT_EQ(handles.widget(handle), widget.get());
  EXPECT_EQ(handles.widget(0), nullptr);
  widget.reset();
  EXPECT_EQ(handles.widget(handle), nullptr);
}

}  // namespace
}  // namespace motor

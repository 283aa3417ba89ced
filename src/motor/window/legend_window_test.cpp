#include <QScreen>
#include <QScrollBar>

#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

using LegendWindows = MapWidgetTest;

TEST_F(LegendWindows, TheLegendHasAWindowOfItsOwn) {
  QWidget frame;
  const std::int64_t parent = handles_.handleOf(frame);
  windows_.showLegend(window(), parent, 20, 30);
  const auto* legend = frame.findChild<LegendWindow*>();
  ASSERT_NE(legend, nullptr);
  EXPECT_EQ(legend->windowTitle(), "Leyenda");
  EXPECT_TRUE(legend->isVisible());
  EXPECT_FALSE(legend->windowFlags().testAnyFlags(Qt::WindowMinMaxButtonsHint));
  EXPECT_GE(legend->width(), 170) << "the title has room beside the buttons";
  windows_.hideLegend();
  EXPECT_EQ(frame.findChild<LegendWindow*>(), nullptr);
}

TEST_F(LegendWindows, TheLegendStaysOnTheScreenAndAboveItsParent) {
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

TEST_F(LegendWindows, TheLegendFollowsTheThemes) {
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
TEST_F(LegendWindows, ALegendThatIsTooTallScrolls) {
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

TEST_F(LegendWindows, TheLegendIsThatOfTheMapInFront) {
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

TEST_F(LegendWindows, TheSessionHearsOfALegendThatTheUserCloses) {
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

}  // namespace
}  // namespace motor

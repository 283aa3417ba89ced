#include "motor/window/tools/ruler_tool.h"

#include "motor/session/distance_text.h"
#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

class Ruler : public MapWidgetTest {
 protected:
  Ruler() { session_->run("run menu command 1710"); }

  [[nodiscard]] RulerTool& ruler() { return dynamic_cast<RulerTool&>(widget_->tool()); }
  // What the panel says, as "name value" lines.
  [[nodiscard]] QStringList panel() {
    QStringList lines;
    for (const Reading& reading : ruler().readings()) lines.append(reading.name + " " + reading.value);
    return lines;
  }
  [[nodiscard]] QString length(QPoint from, QPoint to) const {
    return QString::fromStdString(distanceText(metres(from, to), "km"));
  }
  [[nodiscard]] double metres(QPoint from, QPoint to) const {
    return geodesicMetres(Ellipsoid(), map().toMap({from.x() + 0.0, from.y() + 0.0}),
                          map().toMap({to.x() + 0.0, to.y() + 0.0}));
  }
};

TEST_F(Ruler, SaysFirstWhatToDo) {
  EXPECT_TRUE(panel().isEmpty());
  EXPECT_EQ(ruler().hint(), "Haga clic donde empieza la distancia");
  EXPECT_EQ(session_->eval("windowinfo(1007,11)").text(), "T");
}

TEST_F(Ruler, TellsTheRunningSegmentAndTheTotal) {
  click({100, 100});
  moveTo({180, 100});
  EXPECT_EQ(panel(),
            QStringList({"Tramo " + length({100, 100}, {180, 100}), "Total " + length({100, 100}, {180, 100})}));
  click({180, 100});
  moveTo({180, 160});
  const QString total =
      QString::fromStdString(distanceText(metres({100, 100}, {180, 100}) + metres({180, 100}, {180, 160}), "km"));
  EXPECT_EQ(panel(), QStringList({"Tramo " + length({180, 100}, {180, 160}), "Total " + total}));
  EXPECT_EQ(ruler().hint(), "Doble clic: terminar · Esc: anular");
  doubleClick({180, 160});
  EXPECT_EQ(panel(), QStringList({"Tramos 2", "Total " + total}));
  EXPECT_TRUE(ruler().hint().isEmpty());
  moveTo({300, 200});
  EXPECT_EQ(panel().last(), "Total " + total) << "it stays to be read";
  click({50, 50});
  EXPECT_EQ(panel(), QStringList({"Tramo 0,000 km", "Total 0,000 km"})) << "the next one";
}

TEST_F(Ruler, MeasuresInTheMapsUnit) {
  session_->run("Set Map Distance Units \"mi\"");
  click({100, 100});
  moveTo({180, 100});
  EXPECT_TRUE(panel().first().endsWith(" millas"));
}

TEST_F(Ruler, TakesTheLastPointBack) {
  click({100, 100});
  click({180, 100});
  moveTo({180, 160});
  QTest::keyClick(widget_, Qt::Key_Backspace);
  EXPECT_EQ(panel().first(), "Tramo " + length({100, 100}, {180, 160}));
  QTest::keyClick(widget_, Qt::Key_Backspace);
  EXPECT_TRUE(panel().isEmpty());
}

TEST_F(Ruler, EscapeTakesEverythingAway) {
  const QImage before = picture();
  click({100, 100});
  moveTo({180, 150});
  EXPECT_NE(picture(), before);
  QTest::keyClick(widget_, Qt::Key_Escape);
  EXPECT_EQ(picture(), before);
  doubleClick({100, 100});
  EXPECT_EQ(picture(), before) << "a double click on one point measures nothing";
}

TEST_F(Ruler, StaysOnTheMapWhileThatMoves) {
  click({100, 100});
  moveTo({180, 100});
  click({180, 100});
  moveTo({180, 100});
  doubleClick({180, 100});
  const QStringList before = panel();
  turnWheel({200, 150}, 240);
  QTest::keyClick(widget_, Qt::Key_Right);
  EXPECT_EQ(panel(), before);
}

TEST_F(Ruler, GoesWithTheTool) {
  click({100, 100});
  moveTo({180, 150});
  session_->run("run menu command 1701");
  session_->run("run menu command 1710");
  EXPECT_TRUE(panel().isEmpty());
}

TEST_F(Ruler, BeginsAnewInAnotherCoordinateSystem) {
  click({100, 100});
  moveTo({180, 150});
  session_->run("Set Map CoordSys Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0");
  moveTo({190, 150});
  EXPECT_TRUE(panel().isEmpty());
}

}  // namespace
}  // namespace motor

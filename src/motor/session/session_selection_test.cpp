#include "motor/session/session_fixture.h"

// The Selection, the names its rows keep, and the current rows behind it.
namespace motor {
namespace {

TEST_F(SessionTest, namingTheSelectionMovesNoRow) {
  openYear();
  run("Select * from Provincias2001 where sexo=\"Hombres\" order by nombre,sexo,tipo");
  run("fetch rec 5 from selection");
  const std::string row = eval("Provincias2001.rowid");
  ASSERT_NE(row, [&] {
    Session other(windows, {.roots = {study().path()}});
    other.run("run application \"" + writtenPath("2001\\Año2001.wor") + "\"");
    other.run("Select * from Provincias2001 where sexo=\"Hombres\" order by nombre,sexo,tipo");
    return other.eval("Provincias2001.rowid").text();
  }());
  EXPECT_EQ(eval("selectioninfo(2)"), "Query1");
  EXPECT_EQ(eval("Provincias2001.rowid"), row);
  EXPECT_EQ(eval("Selection.rowid"), "5");
  EXPECT_EQ(eval("Query1.rowid"), "5");
  run("select * from Provincias2001 where sexo=\"Mujeres\"");
  run("fetch rec 3 from selection");
  const std::string next = eval("Provincias2001.rowid");
  run("Add Map Layer Selection");
  EXPECT_EQ(eval("Provincias2001.rowid"), next);
  EXPECT_EQ(eval("Selection.rowid"), "3");
}

TEST_F(SessionTest, noRowsAreNoSelection) {
  openYear();
  for (const char* select : {"select * from Provincias2001 where nombre=\"Nadie\"",
                             "select * from Provincias2001 where nombre=\"Nadie\" into Ninguna"}) {
    run(select);
    EXPECT_EQ(eval("selectioninfo(1)"), "") << select;
    EXPECT_EQ(eval("selectioninfo(2)"), "") << select;
    EXPECT_EQ(eval("selectioninfo(3)"), "0") << select;
    EXPECT_EQ(eval("tableinfo(Selection,8)"), "0") << select;
  }
  EXPECT_EQ(eval("numtables()"), "4");
}

// It is reading its first row that fails.
TEST_F(SessionTest, aSelectionWithoutRowsCanBeALayer) {
  openYear();
  run("select * from Provincias2001 where nombre=\"Nadie\"");
  run("Add Map Layer Selection");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,1)"), "Query1");
  EXPECT_NE(rejectedRun("set map center (centroidx(selection.obj),centroidy(selection.obj))").find("fila actual"),
            std::string::npos);
}

TEST_F(SessionTest, tablesAreFoundByNameWhateverWasClosed) {
  openYear();
  for (int n = 1; n <= 5; ++n) {
    run("select * from Provincias2001 where nombre=\"Brisa\"");
    EXPECT_EQ(eval("selectioninfo(2)"), "Query" + std::to_string(n));
  }
  run("Close Table Query2, Query4");
  run("select * from Veldoria2001 into QUERY3");
  EXPECT_EQ(eval("numtables()"), "6");
  EXPECT_EQ(eval("tableinfo(6,1)"), "QUERY3");
  EXPECT_EQ(eval("tableinfo(query3,2)"), "6");
  EXPECT_EQ(eval("tableinfo(5,1)"), "Query5");
  EXPECT_NE(rejectedEval("tableinfo(\"Query2\",1)"), "accepted");
}

TEST_F(SessionTest, anAddedColumnLeavesRowsAndResultsWhereTheyAre) {
  openYear();
  run("select * from Provincias2001 where nombre=\"Ávalos\"");
  run("Add Map Layer Selection");
  run("fetch rec 5 from selection");
  const std::string row = eval("Provincias2001.rowid");
  run("Add Column Provincias2001 (Orden Integer) Values 1,2,3");
  EXPECT_EQ(eval("Provincias2001.rowid"), row);
  EXPECT_EQ(eval("Selection.rowid"), "5");
  run("fetch next from selection");
  EXPECT_EQ(eval("Provincias2001.rowid"), std::to_string(std::stoi(row) + 1));
  EXPECT_EQ(eval("Provincias2001.nombre"), "Ávalos");
  EXPECT_EQ(map().selectedRows().table, map().map().layers[1].table);
  EXPECT_EQ(eval("selectioninfo(2)"), "Query1");
  run("fetch rec 3 from Provincias2001");
  EXPECT_EQ(eval("Provincias2001.orden"), "3");

  run("Close Table Provincias2001");
  EXPECT_EQ(eval("selectioninfo(3)"), "0");
  EXPECT_EQ(eval("numtables()"), "2");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,1)"), "ZonasBasicas2001");
}

TEST_F(SessionTest, aResultWithAnAddedColumnGoesWithItsBase) {
  openYear();
  run("select * from Provincias2001 where nombre=\"Ávalos\" into Q noselect");
  run("Add Column Q (Orden Integer) Values 7,8");
  EXPECT_EQ(eval("Q.orden"), "7");
  run("Close Table Provincias2001");
  EXPECT_EQ(eval("numtables()"), "2");
}

}  // namespace
}  // namespace motor

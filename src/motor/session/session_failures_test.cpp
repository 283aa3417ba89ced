#include <new>

#include "motor/session/session_fixture.h"
#include "platform/programs.h"

// What is left when something goes wrong.
namespace motor {
namespace {

// A statement that fails half-way, and what an expression gives before and after.
struct HalfBad {
  std::string statement;
  std::string expression;
  std::string expected;
};

void PrintTo(const HalfBad& c, std::ostream* out) { *out << c.statement; }

class FailingStatements : public SessionTest, public testing::WithParamInterface<HalfBad> {};

TEST_P(FailingStatements, changeNothing) {
  openWorkspace("Tematicos\\Tumores.wor");
  openYear();
  run("Create ButtonPad \"Barra\" As ToolButton ID 8 Calling OLE \"x\"");
  run("run menu command ID 8");
  run("select * from Provincias2001 where nombre=\"Ávalos\"");
  run("Set Window FrontWindow() Position (3,4) Units \"in\" Title \"Mapa\"");
  ASSERT_EQ(eval(GetParam().expression), GetParam().expected);
  windows.notes.clear();
  std::vector<std::uint64_t> revisions;
  for (const MapWindow* window : session.mapWindows()) revisions.push_back(window->revision());

  EXPECT_NE(rejectedRun(GetParam().statement), "accepted");

  EXPECT_EQ(eval(GetParam().expression), GetParam().expected);
  EXPECT_EQ(windows.notes, std::vector<std::string>());
  ASSERT_EQ(session.mapWindows().size(), revisions.size());
  for (std::size_t i = 0; i < revisions.size(); ++i) EXPECT_EQ(session.mapWindows()[i]->revision(), revisions[i]);
}

INSTANTIATE_TEST_SUITE_P(
    Session, FailingStatements,
    testing::Values(HalfBad{"Map From Provincias2001 width 5 units \"foo\"", "numwindows()", "2"},
                    HalfBad{"Map From Selection, Nada", "numtables()", "4"},
                    HalfBad{"Map From Selection width 5 units \"foo\"", "numtables()", "4"},
                    HalfBad{"Close Table Veldoria2001, Nada", "numtables()", "4"},
                    HalfBad{"Close Table Selection, Nada", "selectioninfo(3)", "12"},
                    HalfBad{"Set Window FrontWindow() Position (1,2) Units \"in\" Title nada",
                            "windowinfo(frontwindow(),6)", "3"},
                    HalfBad{"Set Window FrontWindow() Title \"Otro\" Width 5 Units \"in\" Height 2 Units \"zz\"",
                            "windowinfo(frontwindow(),1)", "Mapa"},
                    HalfBad{"Set Window FrontWindow() Width 5 Units \"in\" Height 2 Units \"zz\"",
                            "windowinfo(frontwindow(),4)", "6.5"},
                    HalfBad{"Add Map Layer Selection, Nada", "numtables()", "4"},
                    HalfBad{"Add Map Layer Nada, Selection", "mapperinfo(frontwindow(),9)", "3"},
                    HalfBad{"Set Legend Window WindowID(1) Layer 1 Display Off, Layer 9 Display Off",
                            "mapperinfo(windowid(1),9)", "2"},
                    HalfBad{"Set Map Order 2,1,2", "layerinfo(frontwindow(),1,1)", "Provincias2001"},
                    HalfBad{"Set Map Order 2, 1.4", "layerinfo(frontwindow(),1,1)", "Provincias2001"}));

TEST_F(SessionTest, aRejectedSetLegendKeepsTheLegend) {
  openWorkspace("Tematicos\\Tumores.wor");
  const auto legend = map().map().layers[0].legend;
  EXPECT_NE(rejectedRun("Set Legend Layer 1 Display Off, Layer 9 Display Off"), "accepted");
  EXPECT_EQ(map().map().layers[0].legend, legend);
}

TEST_F(SessionTest, aRejectedSetWindowLegendLeavesItWhereItWas) {
  openYear();
  EXPECT_NE(rejectedRun("Set Window Legend Parent 5 Position (1,2) Units \"zz\""), "accepted");
  windows.notes.clear();
  run("open window legend");
  EXPECT_EQ(windows.notes, std::vector<std::string>{"legend in 0 at 0,0"});
}

TEST_F(SessionTest, aRejectedAlterButtonPadRemovesNothing) {
  run("Create ButtonPad \"Barra\" As ToolButton ID 8 Calling OLE \"x\" ToolButton ID 9 Calling OLE \"y\"");
  EXPECT_NE(rejectedRun("Alter ButtonPad \"Barra\" Remove 8, \"nada\""), "accepted");
  EXPECT_EQ(rejectedRun("run menu command ID 8"), "accepted");
  EXPECT_EQ(rejectedRun("Alter ButtonPad \"Barra\" Remove 8, 9"), "accepted");
  EXPECT_NE(rejectedRun("run menu command ID 8"), "accepted");
  EXPECT_NE(rejectedRun("run menu command ID 9"), "accepted");
}

TEST_F(SessionTest, engineErrorsSayWhereTheStatementIs) {
  EXPECT_EQ(rejectedRun("set map zoom entire"), "línea 1, columna 1: «Set»: no hay ninguna ventana de mapa abierta");
  EXPECT_EQ(rejectedRun("Set Distance Units \"km\"\n  Fetch first from Nada"),
            "línea 2, columna 3: «Fetch»: la tabla «Nada» no está abierta");
  EXPECT_EQ(rejectedRun("Dim s As String s = \"  Close Table Nada\" Run Command s"),
            "línea 1, columna 3: «Close»: la tabla «Nada» no está abierta");
}

TEST_F(SessionTest, whateverFailsInsideIsTheEnginesFailure) {
  openYear();
  windows.whenChanged = [] { throw std::bad_alloc(); };
  EXPECT_EQ(rejectedRun("set map zoom entire"), "no hay memoria suficiente");
  windows.whenChanged = [] { throw std::runtime_error("motivo"); };
  EXPECT_EQ(rejectedRun("set map zoom entire"), "motivo");
  windows.whenChanged = [] { throw Failure(failures::kSubscript, "índice"); };
  try {
    run("set map zoom entire");
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.number(), failures::kSubscript);
  }
  windows.whenChanged = [] { throw platform::ProgramEnd(); };
  EXPECT_THROW(run("set map zoom entire"), platform::ProgramEnd);
}

TEST_F(SessionTest, nothingButTheProgramsEndLeavesWhatTheUserDoes) {
  openYear();
  run("Create Menu \"MapperShortcut\" ID 17 as \"&Borrar Etiquetas...\" calling 814");
  const std::vector<std::function<void()>> actions{
      [&] {
        map().clicked({5, 5}, false, false);
      },
      [&] {
        map().clickedAt({-3, 41}, false, false);
      },
      [&] {
        map().zoomedBy(2, {5, 5});
      },
      [&] { map().pannedBy(5, 5); },
      [&] {
        map().zoomedIntoBox({5, 5, 50, 50});
      },
      [&] {
        map().zoomedOutOfBox({5, 5, 50, 50});
      },
      [&] {
        map().labelPut({0, 1});
      },
      [&] {
        map().labelMoved({0, 1}, {-3, 41});
      },
      [&] {
        map().labelRemoved({0, 1});
      },
      [&] { map().shownEntire(); },
      [&] { map().shownEntire(0); },
      [&] { map().menuChosen(0); },
  };
  for (std::size_t i = 0; i < actions.size(); ++i) {
    windows.whenChanged = [] { throw std::runtime_error("motivo"); };
    EXPECT_NO_THROW(actions[i]()) << i;
    windows.whenChanged = [] { throw platform::ProgramEnd(); };
    EXPECT_THROW(actions[i](), platform::ProgramEnd) << i;
  }
}

}  // namespace
}  // namespace motor

#include "hosts/headless/replay.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "hosts/headless/headless_world.h"
#include "hosts/headless/scripted_engine.h"

namespace {

using Lines = std::vector<std::string>;

class ReplayTest : public ::testing::Test {
 protected:
  Lines lines;
  headless::ScriptedEngines engines{"eval WindowID(1) => 424242\neval frontwindow() => 424242\n"};

  // The folder holds no study: every workspace is missing.
  static std::string emptyFolder() {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "veldoria_replay_test";
    std::filesystem::create_directories(folder);
    return folder.string();
  }

  // What is wrong with a script; "" when nothing is.
  std::string run(const std::string& script, const std::set<std::string>& quiet = {}) {
    lines.clear();
    headless::HeadlessWorld world(emptyFolder(), std::nullopt, engines);
    headless::Replay replay(
        world, [this](const std::string& line) { lines.push_back(line); }, quiet);
    try {
      replay.run(script);
    } catch (const headless::ScriptError& problem) {
      return problem.what();
    }
    return "";
  }
};

TEST_F(ReplayTest, TheEnginesOwnFrameIsClosed) {
  headless::HeadlessWorld world(emptyFolder(), std::nullopt, engines);
  headless::Replay replay(world, [this](const std::string& line) { lines.push_back(line); });
  world.windows().addWindow("MapInfo");
  replay.run("file <app>\\Tablas\\Estadisticas\\Estadisticas.wor\nstart\ntick");
  const auto found = std::ranges::find(lines, "findwindow \"MapInfo\" = found");
  ASSERT_LT(found, lines.end() - 1);
  EXPECT_EQ(*(found + 1), "closewindow \"MapInfo\"");
}

TEST_F(ReplayTest, SaysWhatIsWrongAndWhere) {
  struct Case {
    const char* script;
    const char* problem;
  };
  for (const Case& c : {
           Case{"# nothing\n\n  jump\n", "line 3: no such verb: jump"},
           Case{"tick", "line 1: tick: the program has not been started"},
           Case{"start\nstart", "line 2: the program has been started already"},
           Case{"start now", "line 1: start: too many words, from \"now\" on"},
           Case{"start\nclose frmInicio\ntick", "line 3: the program has ended"},
           Case{"fail \"create *\" x", "line 1: fail: the number is no whole number: x"},
           Case{"fail", "line 1: fail: the pattern is missing"},
           Case{"failat 0 91", "line 1: failat: calls are counted from 1"},
           Case{"failcall nothing 1 91", "line 1: no kind of call: nothing (engine, machine, windows or dialogs)"},
           Case{"failcall dialogs 0 91", "line 1: failcall: calls are counted from 1"},
           Case{"answer maybe", "line 1: no button: maybe (ok, yes or no)"},
           Case{"start\nclose", "line 2: there is no form frmPrincipal yet"},
           Case{"start\ntree", "line 2: there is no tree yet"},
           Case{"start\nclick Nada", "line 2: there is no control Nada yet"},
           Case{"start\ntick\nclick Image2 4", "line 3: there is no control Image2(4) yet"},
           Case{"start\ntick\nclick TreeView1", "line 3: TreeView1 cannot be clicked"},
           Case{"start\ntick\nedit TreeView1 x", "line 3: TreeView1 cannot be edited"},
           Case{"start\ntick\nselect Ficha Nada",
                "line 3: Ficha has no Nada; it has \"Tablas\", \"Mapas\", \"Datos\", \"Veldoria\""},
           Case{"start\ntick\nmapclick 1 2", "line 3: there is no map to click on"},
           Case{"start\ntick\ncallback Info MI:1,2", "line 3: there is no engine to call back"},
           Case{"start\ntick\nresize 1 x", "line 3: resize: the height is no number: x"},
           Case{"start \"", "line 1: a quoted text is not closed"},
       }) {
    EXPECT_EQ(run(c.script), c.problem) << c.script;
  }
}

// Whatever a script is cut to, it is run or refused with its line.
TEST_F(ReplayTest, AnyCutOfAScriptIsRunOrRefused) {
  const std::string script =
      "fail \"do x\"\"y\" -5 \"t u\"\nanswer no\nstart\ndoubleclick frmInicio\nresize 9000 8000.5\nselect Ficha "
      "Tablas\n"
      "select ComboTabla #1\nclick Image2 3\ntype txtBuscar \"a b\"\nmousemove FichaAños\nshow Ficha\ntree\nclose\n";
  EXPECT_EQ(run(script), "");
  for (std::size_t end = 0; end < script.size(); ++end) {
    const std::string problem = run(script.substr(0, end));
    EXPECT_TRUE(problem.empty() || problem.starts_with("line ")) << script.substr(0, end);
  }
}

TEST_F(ReplayTest, WritesWhatWasDoneBeforeTheMistake) {
  EXPECT_NE(run("start\njump"), "");
  EXPECT_EQ(lines, (Lines{"> start", "form frmInicio load", "form frmInicio show"}));
}

TEST_F(ReplayTest, KindsOfLinesCanBeLeftOut) {
  EXPECT_EQ(run("start\nshow frmInicio\nclose frmInicio", {">", "show"}), "");
  EXPECT_EQ(lines, (Lines{"form frmInicio load", "form frmInicio show", "form frmInicio unload"}));
}

TEST_F(ReplayTest, TheCallOfANumberFails) {
  EXPECT_EQ(run("failcall machine 2 5\nfailcall dialogs 1 5\nstart\ntick", {">", "form", "set"}), "");
  EXPECT_EQ(lines[1], "regquery Path 0 0 = 5");
  const auto box = std::ranges::find_if(lines, [](const std::string& line) { return line.starts_with("msgbox "); });
  ASSERT_LT(box, lines.end() - 1);
  EXPECT_EQ(*(box + 1), "error 5 Error definido por la aplicación o el objeto");
}

// Edited at once a text changes once; typed it is emptied first, and changes with every character.
TEST_F(ReplayTest, ATextIsTypedOrEdited) {
  const auto changes = [&](const std::string& script) {
    EXPECT_EQ(run("start\ntick\n" + script), "");
    return std::ranges::count(lines, "clear ListaResultado");
  };
  const auto none = changes("");
  EXPECT_EQ(changes("edit txtBuscar ab\nedit txtBuscar ab\nedit txtBuscar a"), none + 2);
  EXPECT_EQ(changes("edit txtBuscar ab\ntype txtBuscar cd"), none + 4);
}

TEST_F(ReplayTest, TabsAndToolTipsAreShown) {
  EXPECT_EQ(run("start\ntick\nshow FichaConsultasDatos\nshow FichaAños\nshow Image3 0"), "");
  for (const char* line : {"show FichaConsultasDatos.TabCaption(1) \"Búsquedas\"", "show FichaAños.Tabs(0) \"1999\"",
                           "show Image3(0).ToolTipText \"Zoom+\""}) {
    EXPECT_EQ(std::ranges::count(lines, line), 1) << line;
  }
}

TEST_F(ReplayTest, ControlsAreFoundByTheirFormToo) {
  EXPECT_EQ(run("start\ntick\nmousemove frmPrincipal.LblEstadisticas\nmousemove lblinformacion", {"form", "set"}), "");
  EXPECT_EQ(run("start\ntick\nshow frmInicio.Timer1\nshow Timer1"), "");
  EXPECT_NE(run("start\ntick\nshow frmInicio.Ficha"), "");
}

TEST_F(ReplayTest, NothingIsWrittenOfWhatGoesAfterTheScript) {
  EXPECT_EQ(run("start\ntick\nfile <app>\\Tablas\\1999\\Año1999.wor\nselect Ficha Tablas\nselect Ficha Tablas"), "");
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(), [](const std::string& l) { return l.starts_with("release"); }),
            0);
}

TEST_F(ReplayTest, ARegistryFileReplacesWhatIsInstalled) {
  EXPECT_THROW(headless::HeadlessWorld(emptyFolder(), "a|b|c|d", engines), std::invalid_argument);
  headless::HeadlessWorld world(emptyFolder(), "", engines);
  headless::Replay replay(world, [this](const std::string& line) { lines.push_back(line); });
  replay.run("start\ntick");
  EXPECT_EQ(lines.back(), "end");
  EXPECT_THROW(replay.run("tick"), headless::ScriptError);
}

}  // namespace

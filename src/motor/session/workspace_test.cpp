#include "motor/session/session_fixture.h"
#include "motor/session/table_files.h"

namespace motor {
namespace {

// Workspaces in a folder of their own, beside the study.
class WorkspaceTest : public SessionTest {
 protected:
  void write(const std::string& name, const std::string& statements) {
    std::filesystem::create_directories((folder_.path() / name).parent_path());
    tiny::writeLatin(folder_.path() / name, "!Workspace\n!Version 600\n!Charset WindowsLatin1\n" + statements);
  }
  void writeTable(const std::string& name) {
    const std::filesystem::path file = folder_.path() / name;
    std::filesystem::create_directories(file.parent_path());
    tiny::writeTable(file.parent_path(), file.filename().string(), {"Nombre Char(20)"}, {"\"" + name + "\""},
                     {tiny::rectangle(tiny::kProvinces[0])});
  }
  std::string rejectedWorkspace(const std::string& name) {
    return rejection([&] { own_.run("run application \"" + (folder_.path() / name).string() + "\""); });
  }
  std::string ownEval(const std::string& expression) { return own_.eval(expression).text(); }

  tiny::Folder folder_;
  Session own_{windows, {.roots = {folder_.path()}}};
};

TEST_F(WorkspaceTest, addsToTheSession) {
  openYear();
  openWorkspace("2002\\Año2002.wor");
  EXPECT_EQ(eval("numtables()"), "6");
  EXPECT_EQ(eval("numwindows()"), "2");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,1)"), "Provincias2002");
  EXPECT_EQ(eval("layerinfo(windowid(1),1,1)"), "Provincias2001");
}

TEST_F(WorkspaceTest, isFoundWithoutRegardToCase) {
  openWorkspace("2001\\AÑO2001.WOR");
  EXPECT_EQ(eval("numwindows()"), "1");
}

TEST_F(WorkspaceTest, failsWithoutATableAndSaysWhich) {
  write("a.wor", "Open Table \"Falta\" As Falta Interactive\n");
  EXPECT_EQ(rejectedWorkspace("a.wor"), "a.wor: línea 4, columna 1: «Open»: «Falta»: no se encuentra el archivo");
}

TEST_F(WorkspaceTest, isParsedBeforeItRuns) {
  writeTable("T");
  write("a.wor", "Open Table \"T\"\nqqqq\n");
  EXPECT_TRUE(rejectedWorkspace("a.wor").starts_with("a.wor: línea 5, columna 1: «qqqq»"));
  EXPECT_EQ(ownEval("numtables()"), "0");
}

TEST_F(WorkspaceTest, mustBeAWorkspace) {
  tiny::writeLatin(folder_.path() / "b.wor", "Map From Nada\n");
  EXPECT_NE(rejectedWorkspace("b.wor"), "accepted");
}

TEST_F(WorkspaceTest, readsTablesBesideItFirst) {
  writeTable("T");
  writeTable("sub/T");
  write("sub/a.wor", "Open Table \"T\"\n");
  EXPECT_EQ(rejectedWorkspace("sub/a.wor"), "accepted");
  EXPECT_EQ(ownEval("T.nombre"), "sub/T");
}

TEST_F(WorkspaceTest, readsTablesOfOtherMachinesPathsBesideIt) {
  writeTable("T");
  write("a.wor", "Open Table \"C:\\Estudio\\Tablas\\t.MIF\" As Tabla\n");
  EXPECT_EQ(rejectedWorkspace("a.wor"), "accepted");
  EXPECT_EQ(ownEval("tableinfo(1,1)"), "Tabla");
}

TEST_F(WorkspaceTest, readsRelativePathsFromTheRoots) {
  writeTable("tablas/T");
  write("sub/a.wor", "Open Table \"tablas\\T\"\n");
  EXPECT_EQ(rejectedWorkspace("sub/a.wor"), "accepted");
}

TEST_F(WorkspaceTest, readsNothingOutsideTheRoots) {
  const std::string outside = (study().path() / "2001" / "Provincias2001.mif").string();
  write("a.wor", "Open Table \"" + outside + "\"\n");
  EXPECT_EQ(rejectedWorkspace("a.wor"),
            "a.wor: línea 4, columna 1: «Open»: «" + outside + "»: está fuera de las carpetas que se pueden leer");
  std::filesystem::create_symlink(outside, folder_.path() / "enlace.mif");
  write("b.wor", "Open Table \"enlace\"\n");
  EXPECT_NE(rejectedWorkspace("b.wor").find("fuera"), std::string::npos);
  write("c.wor", "Run Application \"" + (study().path() / "2001" / "Año2001.wor").string() + "\"\n");
  EXPECT_NE(rejectedWorkspace("c.wor").find("fuera"), std::string::npos);
}

TEST_F(WorkspaceTest, mayGoUpAsFarAsTheRoots) {
  writeTable("tablas/T");
  write("sub/a.wor", "Open Table \"..\\tablas\\T\"\n");
  EXPECT_EQ(rejectedWorkspace("sub/a.wor"), "accepted");
  const std::string study = SessionTest::study().path().filename().string();
  write("b.wor", "Open Table \"..\\" + study + "\\2001\\Provincias2001\"\n");
  EXPECT_NE(rejectedWorkspace("b.wor").find("está fuera"), std::string::npos);
  write("sub/c.wor", "Open Table \"..\\aux\"\n");
  EXPECT_NE(rejectedWorkspace("sub/c.wor").find("ruta no permitida"), std::string::npos);
}

// A view names the tables that it is made of, which may lie anywhere.
TEST_F(WorkspaceTest, readsNoPartsOutsideTheRoots) {
  const auto writeView = [&](const std::string& name, const std::string& behind) {
    tiny::writeLatin(folder_.path() / name, "!table\n!version 100\nOpen Table \"" + behind +
                                                "\" Hide\nCreate View V As Select Nombre From " + behind + "\n");
  };
  writeView("fuera.tab", "..\\" + study().path().filename().string() + "\\2001\\Provincias2001");
  write("a.wor", "Open Table \"fuera\"\n");
  EXPECT_NE(rejectedWorkspace("a.wor").find("«Provincias2001.tab» está fuera de las carpetas"), std::string::npos);
  writeView("dentro.tab", "Nada");
  write("b.wor", "Open Table \"dentro\"\n");
  EXPECT_EQ(rejectedWorkspace("b.wor").find("está fuera"), std::string::npos);
}

TEST(TableFilesTest, aWorkspaceOfAnApplicationMayReadAllOfIt) {
  using Paths = std::vector<std::filesystem::path>;
  EXPECT_EQ(rootsOf("/app/Tablas/1999/x.wor"), (Paths{"/app/Tablas/1999", "/app"}));
  EXPECT_EQ(rootsOf("/app/TABLAS/x.wor"), (Paths{"/app/TABLAS", "/app"}));
  EXPECT_EQ(rootsOf("/app/Tablas/a/../b/x.wor"), (Paths{"/app/Tablas/b", "/app"}));
  EXPECT_EQ(rootsOf("/app/mapas/x.wor"), (Paths{"/app/mapas"}));
  EXPECT_EQ(rootsOf("x.wor"), (Paths{std::filesystem::current_path()}));
}

TEST_F(WorkspaceTest, runsOthersButNotItselfForEver) {
  writeTable("T");
  write("a.wor", "Run Application \"b.wor\"\n");
  write("b.wor", "Open Table \"T\"\n");
  EXPECT_EQ(rejectedWorkspace("a.wor"), "accepted");
  EXPECT_EQ(ownEval("numtables()"), "1");
  write("c.wor", "Run Application \"c.wor\"\n");
  EXPECT_NE(rejectedWorkspace("c.wor").find("demasiadas"), std::string::npos);
}

TEST_F(WorkspaceTest, tablesOfOneNameAreNumbered) {
  writeTable("T");
  writeTable("sub/T");
  own_.run("Open Table \"T\" Open Table \"T\" Open Table \"sub\\T\"");
  EXPECT_EQ(ownEval("numtables()"), "2");
  EXPECT_EQ(ownEval("tableinfo(2,1)"), "T_2");
  EXPECT_NE(rejection([&] { own_.run("Open Table \"T\" As Otra"); }).find("«T»"), std::string::npos);
  EXPECT_NE(rejection([&] { own_.run("Open Table \"sub\\T\" As T"); }), "accepted");
}

TEST_F(WorkspaceTest, fileNamesBecomeTableNames) {
  writeTable("2001 mi-tabla");
  own_.run("Open Table \"2001 mi-tabla\"");
  EXPECT_EQ(ownEval("tableinfo(1,1)"), "_2001_mi_tabla");
}

}  // namespace
}  // namespace motor

#include <sys/stat.h>

#include <fstream>

#include "motor/language/parsing/statement_table.h"
#include "motor/session/session_fixture.h"
#include "text/file_text.h"

// Workspaces that were made to do harm.
namespace motor {
namespace {

namespace fs = std::filesystem;

class HarmfulWorkspaces : public SessionTest {
 protected:
  HarmfulWorkspaces() {
    fs::create_directories(folder_.path() / "dentro");
    for (const char* name : {"Fuera", "dentro/Zonas"}) {
      tiny::writeTable(folder_.path(), name, {"Nombre Char(20)"}, {"\"Alta\""}, {"Point -3 41\n"});
    }
  }

  [[nodiscard]] fs::path inside(const std::string& name) const { return folder_.path() / "dentro" / name; }
  // What is said of a workspace in the folder that may be read.
  std::string answer(const std::string& statements) {
    std::ofstream(inside("malo.wor"), std::ios::binary) << tiny::kFirstLines << statements;
    Session own(windows, {.roots = {folder_.path() / "dentro"}});
    return rejection([&] { own.run("Run Application \"" + inside("malo.wor").string() + "\""); });
  }
  // All files there are, with their sizes.
  [[nodiscard]] std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder_.path())) {
      const bool counts = entry.is_regular_file() && entry.path().filename() != "malo.wor";
      if (counts) names.push_back(entry.path().string() + " " + std::to_string(entry.file_size()));
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  tiny::Folder folder_;
};

TEST_F(HarmfulWorkspaces, mayNotWriteRunDeleteOrLoad) {
  const std::vector<std::string> before = files();
  for (const RefusedRule& rule : refusedRules()) {
    const std::string said = answer("Open Table \"Zonas\"\n" + std::string(rule.words) + " Zonas\n");
    EXPECT_TRUE(said.starts_with("malo.wor: línea 5, columna 1: ")) << said;
    EXPECT_TRUE(said.ends_with(rule.reason)) << said;
  }
  for (const char* program : {"Programa.MBX", "x.mbo", "orden.exe", "orden.COM", "orden.bat", "x.cmd", "x.dll"}) {
    EXPECT_NE(answer("Run Application \"" + std::string(program) + "\"\n").find("no se permite ejecutar programas"),
              std::string::npos);
  }
  EXPECT_EQ(files(), before);
}

TEST_F(HarmfulWorkspaces, mayNotLeaveTheirFolder) {
  ASSERT_EQ(answer("Open Table \"Zonas\"\n"), "accepted");
  const std::string outside = (folder_.path() / "Fuera.mif").string();
  for (const std::string& path :
       {std::string("..\\Fuera"), std::string("../Fuera.mif"), std::string("..\\dentro\\..\\Fuera"), outside}) {
    EXPECT_NE(answer("Open Table \"" + path + "\"\n").find("está fuera de las carpetas que se pueden leer"),
              std::string::npos)
        << path;
  }
  tiny::writeLatin(folder_.path() / "otro.wor", tiny::kFirstLines);
  EXPECT_NE(answer("Run Application \"..\\otro.wor\"\n").find("está fuera"), std::string::npos);
  fs::create_directory_symlink(folder_.path(), inside("enlace"));
  EXPECT_NE(answer("Open Table \"enlace\\Fuera\"\n").find("está fuera"), std::string::npos);
  fs::create_symlink(outside, inside("Enlace.mif"));
  fs::create_symlink(folder_.path() / "Fuera.mid", inside("Enlace.mid"));
  EXPECT_NE(answer("Open Table \"Enlace\"\n").find("está fuera"), std::string::npos);
  // The table lies inside, its rows do not.
  fs::remove(inside("Zonas.mid"));
  fs::create_symlink(folder_.path() / "Fuera.mid", inside("Zonas.mid"));
  EXPECT_NE(answer("Open Table \"Zonas\"\n").find("«Zonas.mid» está fuera"), std::string::npos);
}

TEST_F(HarmfulWorkspaces, mayNotUseDevices) {
  for (const char* name : {"CON", "nul", "Aux.tab", "LPT1", "com9.tab", "PRN:", "..\\NUL", "C:\\CON\\x", "\\\\.\\COM1",
                           "LPT1 .tab", "con  ", "CONIN$", "conout$.tab", "\\\\servidor\\datos\\x"}) {
    EXPECT_NE(answer("Open Table \"" + std::string(name) + "\"\n").find("ruta no permitida"), std::string::npos)
        << name;
  }
  fs::create_symlink("/dev/zero", inside("cero.tab"));
  fs::create_symlink("/dev/zero", inside("cero.wor"));
  ASSERT_EQ(mkfifo(inside("tubo.tab").c_str(), 0600), 0);
  ASSERT_EQ(mkfifo(inside("tubo.wor").c_str(), 0600), 0);
  for (const char* statement :
       {"Open Table \"/dev/zero\"", "Open Table \"cero\"", "Open Table \"tubo\"", "Run Application \"/dev/zero\"",
        "Run Application \"cero.wor\"", "Run Application \"tubo.wor\""}) {
    EXPECT_NE(answer(std::string(statement) + "\n").find("no se encuentra el archivo"), std::string::npos) << statement;
  }
}

TEST_F(HarmfulWorkspaces, mayNotBeEndless) {
  const std::uintmax_t size = std::uintmax_t{1} << 40U;  // of which the disk holds nothing
  tiny::writeLatin(inside("largo.wor"), tiny::kFirstLines);
  fs::resize_file(inside("largo.wor"), size);
  EXPECT_NE(answer("Run Application \"largo.wor\"\n").find("demasiado grande"), std::string::npos);
}

TEST_F(HarmfulWorkspaces, mayNotAskForTooMuch) {
  const std::string open = "Open Table \"Zonas\"\nMap From Zonas\n";
  const std::string deep(100'000, '(');
  struct Case {
    std::string statements;
    const char* reason;
  };
  const auto layers = [](int count) {
    std::string statements = "Open Table \"Zonas\" As Z\nMap From Z";
    for (int i = 1; i < count; ++i) statements += ",Z";
    return statements;
  };
  for (const Case& c : {
           Case{layers(20'000'000), "el archivo es demasiado grande"},
           Case{layers(10'000'000), "demasiadas palabras"},
           Case{layers(500'000), "no puede tener más de 1000 capas"},
           Case{open + "Set Map Layer 1 Label With " + deep + "Nombre", "demasiados niveles de anidamiento"},
           Case{open + "Set Map Layer 1 Label With String$(2000000000,\"a\")", "accepted"},
           Case{open + "Dim s As String s = String$(2000000000,\"a\")", "demasiado largo"},
           Case{open + "Set Map Order 1e300", "demasiado grande"},
           Case{open + "Set Map Layer 1 Label Max 1e10", "demasiado grande"},
           Case{open + "Create Pline 4000000000 (1,2)", "se esperaba un número de puntos"},
           Case{open + "Dim s As String s = \"Run Command s\" Run Command s", "demasiadas instrucciones que ejecutan"},
       }) {
    EXPECT_NE(answer(c.statements + "\n").find(c.reason), std::string::npos) << c.statements.substr(0, 100);
  }
}

std::string repeated(const std::string& text, int count) {
  std::string result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

// Each level runs the next many times, and none is deep.
TEST_F(HarmfulWorkspaces, mayNotFanOut) {
  tiny::writeLatin(inside("vacio.wor"), tiny::kFirstLines);
  tiny::writeLatin(inside("otro.wor"), tiny::kFirstLines + repeated("Run Application \"vacio.wor\"\n", 200));
  const std::string files = answer(repeated("Run Application \"otro.wor\"\n", 200));
  EXPECT_TRUE(files.starts_with("malo.wor: otro.wor: línea ")) << files;
  EXPECT_TRUE(files.ends_with("demasiadas instrucciones que ejecutan otras")) << files;

  const std::string texts = "Dim a, b As String\na = \"" + repeated("Run Command b ", 200) + "\"\n";
  const std::string empties =
      answer(texts + "b = \"" + repeated("Run Command c ", 200) + "\"\nDim c As String\nRun Command a\n");
  EXPECT_NE(empties.find("demasiadas instrucciones que ejecutan otras"), std::string::npos) << empties;
  const std::string statements = answer(texts + "b = \"" + repeated("Undim x ", 20'000) + "\"\nRun Command a\n");
  EXPECT_NE(statements.find("no se pueden ejecutar de una vez más de 1000000 instrucciones"), std::string::npos)
      << statements;
}

TEST_F(HarmfulWorkspaces, doNotSpendWhatOthersMayRun) {
  tiny::writeLatin(inside("otro.wor"), tiny::kFirstLines + std::string(12'000'000, '\n'));
  Session own(windows, {.roots = {folder_.path() / "dentro"}});
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(rejection([&] { own.run("Run Application \"" + inside("otro.wor").string() + "\""); }), "accepted");
  }
}

TEST_F(HarmfulWorkspaces, mayBeLong) {
  EXPECT_EQ(answer("Dim n As Integer\n" + repeated("n=1\n", 300'000)), "accepted");
}

TEST_F(HarmfulWorkspaces, mayNotFillTheMemoryWithVariables) {
  std::string variables = "Dim s As String\ns = String$(1000000, \"a\")\n";
  for (int i = 0; i < 300; ++i) {
    const std::string name = "a" + std::to_string(i);
    variables += "Dim " + name + " As String\n" + name + "=s\n";
  }
  EXPECT_NE(answer(variables).find("las variables no pueden ocupar en total más de 256 MB"), std::string::npos);
}

}  // namespace
}  // namespace motor

#include "platform/paths.h"

#include <gtest/gtest.h>

#include <fstream>

namespace platform {
namespace {

namespace fs = std::filesystem;

fs::path utf8(const std::string& s) { return fs::path(std::u8string(s.begin(), s.end())); }

class MachinePathTest : public testing::Test {
 protected:
  void SetUp() override {
    root_ = testing::TempDir() + "machine_path";
    fs::remove_all(root_);
    create("Tablas/Estadisticas/Estadisticas.wor");
    create("Tablas/1999/Año1999.wor");
    create("Tablas/2000/An\u0303o2000.wor");  // decomposed
    create("Doble/DATOS.TAB");
    create("Doble/datos.tab");
  }
  void TearDown() override { fs::remove_all(root_); }

  void create(const std::string& name) const {
    const fs::path file = utf8(root_ + "/" + name);
    fs::create_directories(file.parent_path());
    std::ofstream(file) << "x";
  }

  std::string root_;
};

TEST_F(MachinePathTest, findsNamesWithoutRegardToCase) {
  struct Case {
    const char* written;
    const char* found;
  };
  const Case cases[] = {
      {"\\Tablas\\Estadisticas\\Estadisticas.wor", "/Tablas/Estadisticas/Estadisticas.wor"},
      {"\\TABLAS\\estadisticas\\ESTADISTICAS.WOR", "/Tablas/Estadisticas/Estadisticas.wor"},
      {"/tablas\\1999/AÑO1999.wor", "/Tablas/1999/Año1999.wor"},
      {"\\tablas\\1999\\an\u0303o1999.WOR", "/Tablas/1999/Año1999.wor"},
      {"\\tablas\\2000\\año2000.wor", "/Tablas/2000/An\u0303o2000.wor"},
      {"\\doble\\datos.tab", "/Doble/datos.tab"},
      {"\\doble\\DATOS.TAB", "/Doble/DATOS.TAB"},
      {"\\doble\\Datos.Tab", "/Doble/DATOS.TAB"},
      {"\\tablas\\", "/Tablas"},
      {"\\tablas\\..\\doble", "/Tablas/../Doble"},
      {"\\tablas\\Nuevo\\Tablas", "/Tablas/Nuevo/Tablas"},
      {"\\tablas\\\\1999", "/Tablas/1999"},
  };
  for (const Case& c : cases) EXPECT_EQ(machinePath(root_ + c.written), utf8(root_ + c.found)) << c.written;
}

TEST_F(MachinePathTest, keepsWhatDoesNotExist) {
  EXPECT_EQ(machinePath(""), fs::path());
  EXPECT_EQ(machinePath("no\\Existe\\aquí"), utf8("no/Existe/aquí"));
  EXPECT_EQ(machinePath("X:\\Archivos\\a.pdf"), utf8("X:/Archivos/a.pdf"));
}

TEST(FoldedFileNameTest, ignoresCaseAndComposition) {
  EXPECT_EQ(foldedFileName("AN\u0303O.Tab"), "año.tab");
  EXPECT_NE(foldedFileName("ano.tab"), foldedFileName("año.tab"));
}

}  // namespace
}  // namespace platform

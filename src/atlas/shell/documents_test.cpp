#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

const std::string kBrowserStart = "shell \"C:\\Archivos de Programa\\Internet Explorer\\IEXPLORE.EXE\" ";

class Documents : public testing::Program {
 protected:
  void SetUp() override {
    start();
    for (const char* year : {"1999", "2000", "2001"}) {
      world.files[inFolder(std::string("\\Archivos\\mortalidad_") + year + ".pdf")] = "x.pdf";
    }
  }
};

TEST_F(Documents, PagesOpenInTheBrowser) {
  const std::vector<std::pair<forms::Label*, std::string>> pages{
      {&main().Label1, "Creditos.html"},
      {&main().LblMetodologia, "Medologia.html"},
      {&main().LblPresentación, "PRESENTACION.html"},
      {&main().LblUso, "Uso de la aplicacion.html"},
  };
  for (const auto& [label, file] : pages) {
    label->userClick();
    const std::string quotedPath = "\"C:\\Estudio\\Archivos\\" + file + "\"";
    EXPECT_EQ(world.take(), (Lines{kBrowserStart + quotedPath, "find Seleccionar mapa temático none"}));
  }
}

TEST_F(Documents, APageThatOpensClosesTheSelector) {
  main().Ficha.userPick(1);
  world.take();
  main().LblUso.userClick();
  EXPECT_EQ(world.take({"find", "hide", "unload"}),
            (Lines{"find Seleccionar mapa temático found", "hide frmTematicos", "unload frmTematicos"}));
}

TEST_F(Documents, ABrowserThatIsNotThereIsPassedOverInSilence) {
  world.failAt("shell", failures::kFileNotFound);
  main().Label1.userClick();
  EXPECT_EQ(world.take({"msgbox", "find"}), Lines{});
}

TEST_F(Documents, ReportsOpenInTheReaderAndCloseTheMenu) {
  const std::vector<std::pair<forms::Label*, std::string>> reports{
      {&main().PDF1999, "1999"}, {&main().PDF2000, "2000"}, {&main().PDF2001, "2001"}};
  for (const auto& [label, year] : reports) {
    main().LblEstadisticas.userMouseMove();
    world.take();
    label->userClick();
    const std::string path = "C:\\Estudio\\Archivos\\mortalidad_" + year + ".pdf";
    EXPECT_EQ(world.take(), (Lines{"dir " + path, "shell \"C:\\Lector\\ACRORD32.exe\" \"" + path + "\"",
                                   "find Seleccionar mapa temático none", "set Submenu.Visible False"}));
  }
}

TEST_F(Documents, ReportsOpenInTheFullAcrobatWithoutReader) {
  atlas.AcrobatInstalado = false;
  atlas.AcrobatProInstalado = true;
  atlas.executables.acrobat = "C:\\Acro\\Acrobat.exe";
  main().PDF2000.userClick();
  EXPECT_EQ(world.take({"shell"}),
            (Lines{"shell \"C:\\Acro\\Acrobat.exe\" \"C:\\Estudio\\Archivos\\mortalidad_2000.pdf\""}));
}

TEST_F(Documents, AMissingReportIsSaidAndClosesNothing) {
  main().Ficha.userPick(1);
  world.files.erase(inFolder("\\Archivos\\mortalidad_2001.pdf"));
  world.take();
  main().PDF2001.userClick();
  EXPECT_EQ(world.take(), (Lines{"dir C:\\Estudio\\Archivos\\mortalidad_2001.pdf",
                                 "msgbox 16 [Mortalidad en Veldoria 1999-2002] No se encuentra el archivo."}));
}

TEST_F(Documents, WithoutViewerTheMessageSaysHowToInstallOne) {
  atlas.AcrobatInstalado = false;
  main().PDF1999.userClick();
  EXPECT_EQ(world.take(),
            (Lines{"msgbox 0 [Mortalidad en Veldoria 1999-2002] Acrobat Reader no está instalado correctamente en su "
                   "equipo, instálelo mediante el acceso directo 'Instalar Acrobat Reader'."}));
}

TEST_F(Documents, HelpShowsItsContents) {
  main().Image3.at(9).userClick();
  EXPECT_EQ(world.take(), (Lines{"help C:\\Estudio\\Ayuda\\Ayuda.hlp 3"}));
  EXPECT_EQ(main().DialogoAyuda.helpCommand(), 3);
}

}  // namespace
}  // namespace atlas

#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

const std::string kPage = "C:\\Estudio\\Tablas\\HTML\\0\\Grandes Grupos\\1999 - Ambos Sexos.html";

class TableExport : public testing::Program {
 protected:
  void SetUp() override { startOnTab(0); }
  static std::string question(const std::string& name) {
    return "msgbox 36 [Mortalidad en Veldoria] Va a guardar el archivo en " + name + ". ¿Desea continuar?";
  }
};

TEST_F(TableExport, CopiesThePageShownWhenTheUserSaysYes) {
  world.fileNameChosen = "D:\\tabla.html";
  world.buttons = {platform::Button::yes};
  main().ImgExportar.userClick();
  EXPECT_EQ(world.take(), (Lines{"savedialog Guardar como... *.html|HTML Página", "dir D:\\tabla.html",
                                 question("D:\\tabla.html"), "copy " + kPage + " -> D:\\tabla.html"}));
}

TEST_F(TableExport, NoCopiesNothing) {
  world.fileNameChosen = "D:\\tabla.html";
  world.buttons = {platform::Button::no};
  main().ImgExportar.userClick();
  EXPECT_EQ(world.take({"copy"}), Lines{});
}

TEST_F(TableExport, ANameWithoutHtmlAnywhereGetsIt) {
  const std::vector<std::pair<std::string, std::string>> names{{"D:\\tabla", "D:\\tabla.html"},
                                                               {"D:\\a.html.txt", "D:\\a.html.txt"},
                                                               {"D:\\a.HTML", "D:\\a.HTML.html"},
                                                               {"D:\\a.htm", "D:\\a.htm.html"}};
  for (const auto& [chosen, name] : names) {
    world.fileNameChosen = chosen;
    main().ImgExportar.userClick();
    EXPECT_EQ(world.take({"msgbox"}), (Lines{question(name)}));
  }
}

TEST_F(TableExport, AnExistingFileIsNeverOverwritten) {
  world.fileNameChosen = "D:\\tabla";
  world.files["D:\\tabla.html"] = "tabla.html";
  world.buttons = {platform::Button::yes};
  main().ImgExportar.userClick();
  EXPECT_EQ(world.take({"msgbox", "copy"}),
            (Lines{"msgbox 64 [El archivo ya existe.] Ya existe en el destino un archivo con el mismo nombre."}));
}

TEST_F(TableExport, ACancelledDialogStillAsks) {
  main().ImgExportar.userClick();
  EXPECT_EQ(world.take({"msgbox", "copy"}), (Lines{question("Página.html")}));
}

TEST_F(TableExport, AFailedCopyIsSilent) {
  world.fileNameChosen = "D:\\tabla";
  world.buttons = {platform::Button::yes};
  world.failAt("copy", failures::kFileNotFound);
  main().ImgExportar.userClick();
  EXPECT_EQ(world.take({"msgbox"}), (Lines{question("D:\\tabla.html")}));
}

}  // namespace
}  // namespace atlas

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTreeWidget>
#include <functional>

#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/frm_tematicos.h"
#include "golden_picture.h"
#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/screen_picture.h"
#include "hosts/desktop/tour_guide.h"
#include "hosts/desktop/user_hands.h"

// The program's windows on the tiny study, compared with the pictures beside this file.
namespace {

namespace hands = desktop::hands;
using pictures::expectScreen;

enum MainTab : int { kTables, kMaps, kData, kStatistics };

class Pictures : public ::testing::Test {
 protected:
  // A working window that takes so much room with its title.
  void start(QSize window) {
    program.host().setFirstSize(window - QSize(0, desktop::kPictureTitleHeight));
    program.start();
    hands::settle();
  }
  void startAtOnce(QSize window) {
    start(window);
    hands::doubleClick(*program.host().windowOf(program.atlas().frmInicio()));
  }
  void user(const std::function<void()>& does) {
    program.calls().run(does);
    hands::settle();
  }
  void openTab(MainTab tab) {
    if (form().Ficha.tab() != tab) user([&] { form().Ficha.userPick(tab); });
  }
  void consultAZone() {
    user([this] { form().CmbProvincias.userPick(1); });
    user([this] { form().CmbZonas.userPick(0); });
    user([this] { form().FichaAños.userPick(2); });
  }
  [[nodiscard]] atlas::FrmPrincipal& form() { return program.atlas().frmPrincipal(); }
  template <class Widget = QWidget>
  [[nodiscard]] Widget& widget(const char* name) {
    return *program.host().windowOf(form())->findChild<Widget*>(QString::fromUtf8(name));
  }

  desktop::NotedPrograms programs;
  desktop::DesktopProgram program{VELDORIA_TINY_STUDY, programs};
};

// --- every mode at every size ---

class ModePictures : public Pictures, public ::testing::WithParamInterface<QSize> {
 protected:
  void SetUp() override { startAtOnce(GetParam()); }
  void expectMode(const std::string& name) { expectScreen(name + "-" + pictures::sizeName(GetParam())); }
};

TEST_P(ModePictures, Statistics) { expectMode("veldoria"); }

TEST_P(ModePictures, Data) {
  openTab(kData);
  consultAZone();
  expectMode("datos");
}

TEST_P(ModePictures, ThematicMapsWithSelectorAndLegend) {
  openTab(kMaps);
  expectMode("mapas");
}

TEST_P(ModePictures, Tables) {
  openTab(kTables);
  expectMode("tablas");
}

std::string atWidth(const ::testing::TestParamInfo<QSize>& size) { return "At" + std::to_string(size.param.width()); }

INSTANTIATE_TEST_SUITE_P(Sizes, ModePictures, ::testing::Values(QSize(1024, 768), QSize(1440, 900), QSize(1920, 1080)),
                         atWidth);
INSTANTIATE_TEST_SUITE_P(SmallScreen, ModePictures, ::testing::Values(QSize(800, 600)), atWidth);

// --- what else is seen ---

class DetailPictures : public Pictures {
 protected:
  static constexpr QSize kWindow{1024, 768};
};

TEST_F(DetailPictures, Splash) {
  start(kWindow);
  expectScreen("portada");
}

TEST_F(DetailPictures, MenuByKeyboard) {
  startAtOnce(kWindow);
  widget("LblInformacion").setFocus(Qt::TabFocusReason);
  hands::settle();
  expectScreen("menu");
}

TEST_F(DetailPictures, TreeWithItsMenu) {
  startAtOnce(kWindow);
  openTab(kData);
  consultAZone();
  auto& tree = widget<QTreeWidget>("TreeView1");
  tree.setFocus(Qt::TabFocusReason);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Asterisk, Qt::Key_Down, Qt::Key_Down}) hands::press(tree, key);
  QContextMenuEvent byKeyboard(QContextMenuEvent::Keyboard, {}, {});
  QCoreApplication::sendEvent(&tree, &byKeyboard);
  expectScreen("menu-del-arbol");
}

TEST_F(DetailPictures, Search) {
  startAtOnce(kWindow);
  openTab(kData);
  user([this] { form().FichaConsultasDatos.userPick(1); });
  user([this] { form().CmbBuscar.userPick(1); });
  hands::type(widget<QLineEdit>("txtBuscar"), QStringLiteral("enc"));
  expectScreen("busqueda");
}

TEST_F(DetailPictures, AThematicMapOfAProvince) {
  startAtOnce(kWindow);
  openTab(kMaps);
  user([this] { program.atlas().frmTematicos().CmbMarco.userPick(2); });
  expectScreen("mapas-provincia");
}

}  // namespace

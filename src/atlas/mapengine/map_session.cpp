#include <exception>

#include "atlas/atlas.h"
#include "atlas/callbacks/mi_callback.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/selector_window.h"
#include "atlas/titles.h"
#include "text/failure.h"
#include "text/number_text.h"

// Opening a workspace: a fresh engine session each time. The order of the steps is a contract with the engine: the main
// window is topmost while the engine's own frame is closed, the application window is set before the workspace is run,
// and the callback object is registered before the buttons that name its methods.
namespace atlas {
namespace {

// What is reported of a failure that is none of the ports' own.
constexpr int kNoNumber = 0;

constexpr unsigned kStay = platform::kNoSize | platform::kNoMove | platform::kNoActivate;

}  // namespace

void Atlas::AbrirMapa(const std::string& ruta) {
  if (ports.files.lookUp(ruta).empty()) {
    ports.messages.show("No existe ningún mapa para los parámetros seleccionados",
                        platform::kInformation | platform::kOkOnly, kBoxTitle);
    return;
  }
  try {
    openWorkspace(ruta);
  } catch (const Failure& failure) {
    reportOpening(failure.number(), failure.description());
  } catch (const std::exception& failure) {
    reportOpening(kNoNumber, failure.what());
  }
}

void Atlas::MostrarComando(const std::string& nombre) {
  frmPrincipal().lblComando.setCaption("Comando actual: " + nombre);
}

void Atlas::openWorkspace(const std::string& ruta) {
  FrmPrincipal& main = frmPrincipal();
  main.txtEspere.setVisible(true);
  main.txtespere1.setVisible(true);
  main.ProgressBar1.setVisible(true);
  main.ProgressBar1.setValue(10);
  main.ProgressBar1.setValue(20);
  main.TreeView1.clear();
  createEngine();
  embedMapWindow(ruta);
  if (main.Ficha.tab() == 1) {
    showSelectorOnTop(*this);
    Do("open window legend");
    Do("set window legend position (6,5) units \"in\" ");
  } else {
    closeSelectorIfOpen(*this);
  }
  callbackmapa = std::make_shared<MICallback>(*this);
  SetCallback(callbackmapa);
  main.ProgressBar1.setValue(90);
  addToolButtons();
  chooseStartTool();
  main.ProgressBar1.setValue(100);
  main.txtEspere.setVisible(false);
  main.txtespere1.setVisible(false);
  main.ProgressBar1.setVisible(false);
}

void Atlas::createEngine() {
  FrmPrincipal& main = frmPrincipal();
  ports.windows.setZOrder(main.hWnd(), platform::ZOrder::topmost, kStay);
  main.ProgressBar1.setValue(30);
  motormapa = ports.engines.create("MapInfo.runtime");
  main.ProgressBar1.setValue(40);
  ports.windows.close(ports.windows.find(kEngineFrameTitle));
  main.ProgressBar1.setValue(50);
  ports.windows.setZOrder(main.hWnd(), platform::ZOrder::notTopmost, kStay);
  main.ProgressBar1.setValue(60);
}

void Atlas::embedMapWindow(const std::string& ruta) {
  FrmPrincipal& main = frmPrincipal();
  Do("Set application Window " + text::number(main.PictureMapa.hWnd()));
  Do("run application \"" + ruta + "\"");
  Do("Set Window Ruler Parent " + text::number(main.hWnd()));
  Do("Set Window Legend Parent " + text::number(main.hWnd()));
  main.ProgressBar1.setValue(70);
  addShortcutMenu();
  const std::string id = std::to_string(Eval("WindowID(1)").int32());
  const platform::WindowHandle mapWindow = Eval("WindowInfo(" + id + ", 12)").int32();
  ports.windows.setParent(mapWindow, main.PictureMapa.hWnd());
  main.ProgressBar1.setValue(80);
  Do("set window " + id + "Max");
}

void Atlas::addShortcutMenu() {
  Do("Create Menu \"MapperShortcut\" ID 17 as \"&Ver Toda la Capa...\" calling 807,"
     "\"&Borrar Etiquetas...\" calling 814,\"&Quitar Selección...\" calling OLE \"borraseleccion\"");
}

void Atlas::addToolButtons() {
  Do("Create Buttonpad \"Callback\" As Toolbutton ID 2001 DrawMode 34 Cursor 138 Calling OLE \"Info\"");
  Do("Alter buttonpad \"Callback\" add Toolbutton ID 2002 DrawMode 34 Cursor 138 Calling OLE \"InfoEstadisticas\"");
  Do("Alter buttonpad \"Callback\" add Toolbutton ID 2003 DrawMode 34 Cursor 138 Calling OLE \"InfoDatos\"");
}

void Atlas::chooseStartTool() {
  // Tab 2 is the data tab and tab 3 the statistics tab: the numbers of tabs and tools cross over.
  switch (frmPrincipal().Ficha.tab()) {
    case 1:
      Do("run menu command ID 2001");
      break;
    case 2:
      Do("run menu command ID 2003");
      break;
    case 3:
      Do("run menu command ID 2002");
      break;
    default:
      return;
  }
  MostrarComando("Información");
}

void Atlas::reportOpening(int number, const std::string& description) {
  constexpr int kWarning = platform::kExclamation | platform::kOkOnly;
  switch (number) {
    case failures::kEngineRejected:
      ports.messages.show("No se pudo abrir el entorno de trabajo o su ruta es incorrecta.", kWarning, kBoxTitle);
      motormapa.reset();
      break;
    case failures::kNoObject:
      ports.messages.show("MapInfo Proviewer no está instalado correctamente en el equipo, reinstálelo de nuevo.",
                          kWarning, kBoxTitle);
      motormapa.reset();
      endProgram();
    default:
      ports.messages.show("Error al cargar el mapa : " + description + " " + std::to_string(number), platform::kOkOnly,
                          kProgramTitle);
      break;
  }
  leaveOpening();
}

void Atlas::leaveOpening() {
  FrmPrincipal& main = frmPrincipal();
  ports.windows.setZOrder(main.hWnd(), platform::ZOrder::notTopmost, kStay | platform::kShowWindow);
  main.txtEspere.setVisible(false);
  main.txtespere1.setVisible(false);
  main.ProgressBar1.setVisible(false);
}

}  // namespace atlas

#include "hosts/desktop/tour.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTreeWidget>
#include <array>
#include <stdexcept>

#include "hosts/desktop/user_hands.h"

namespace desktop {
namespace {

enum MainTab : int { kTables, kMaps, kData, kStatistics };

constexpr int kRootsSaid = 4;

void mustExist(const std::filesystem::path& file) {
  if (!std::filesystem::exists(file) || std::filesystem::file_size(file) == 0) {
    throw std::runtime_error("no se ha escrito " + file.string());
  }
}

}  // namespace

Tour::Tour(DesktopProgram& program, NotedPrograms& programs, std::filesystem::path pictures, std::ostream& log)
    : program_(program), guide_(programs, std::move(pictures), log) {}

bool Tour::walk() {
  try {
    showSplash();
    showStatistics();
    openDocuments();
    consult();
    search();
    useTools();
    printMap();
    showThematicMaps();
    showTables();
    exportTable();
    minimizeAndRestore();
    close();
  } catch (const std::runtime_error& problem) {
    guide_.say(std::string("El recorrido se detiene: ") + problem.what());
    return false;
  }
  return true;
}

void Tour::sayTree() {
  const auto& tree = guide_.widget<QTreeWidget>("TreeView1");
  for (int i = 0; i < qMin(kRootsSaid, tree.topLevelItemCount()); ++i) {
    const QTreeWidgetItem& root = *tree.topLevelItem(i);
    QStringList below;
    for (int child = 0; child < root.childCount(); ++child) below += root.child(child)->text(0);
    const QString children =
        below.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(below.join(QStringLiteral("; ")));
    guide_.say("· " + (root.text(0) + children).toStdString());
  }
}

void Tour::openFirstBranches() {
  auto& tree = guide_.widget<QTreeWidget>("TreeView1");
  hands::press(tree, Qt::Key_Home);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Right}) {
    hands::press(tree, key);
  }
}

void Tour::showSplash() {
  program_.start();
  guide_.step("Se abre la portada", "portada");
}

void Tour::showStatistics() {
  hands::doubleClick(guide_.window("frmInicio"));
  guide_.step("Doble clic en la portada: la ventana principal con el mapa de Veldoria", "veldoria");
  hands::click(guide_.map());
  sayTree();
  hands::press(guide_.widget<QTreeWidget>("TreeView1"), Qt::Key_Home);
  hands::press(guide_.widget<QTreeWidget>("TreeView1"), Qt::Key_Asterisk);
  guide_.step("Un clic en el mapa: las estadísticas de una provincia", "estadisticas");
}

void Tour::openDocuments() {
  guide_.openDocument("LblPresentación");
  struct Menu {
    const char* label;
    const char* what;
    const char* picture;
    std::array<const char*, 3> entries;
  };
  for (const Menu& menu :
       {Menu{"LblInformacion", "El menú de los documentos", "menu-informacion", {"LblMetodologia", "LblUso", "Label1"}},
        Menu{"LblEstadisticas",
             "El menú de los informes anuales",
             "menu-informes",
             {"PDF1999", "PDF2000", "PDF2001"}}}) {
    hands::pointAt(guide_.widget(menu.label));
    guide_.step(menu.what, menu.picture);
    for (const char* entry : menu.entries) {
      hands::pointAt(guide_.widget(menu.label));  // an opened report closes its menu
      guide_.openDocument(entry);
    }
    hands::pointAt(guide_.map());
  }
}

void Tour::consult() {
  guide_.pickTab("Ficha", kData);
  guide_.step("Ficha «Datos»: el mapa del año", "datos");
  const auto& provinces = guide_.widget<QComboBox>("CmbProvincias");
  const std::string province = guide_.pickItem("CmbProvincias", provinces.count() / 2);
  sayTree();
  openFirstBranches();
  guide_.step("Provincia: " + province, "provincia");
  const auto& zones = guide_.widget<QComboBox>("CmbZonas");
  const std::string zone = guide_.pickItem("CmbZonas", zones.count() / 2);
  sayTree();
  openFirstBranches();
  guide_.step("Zona básica: " + zone, "zona");
  constexpr int kThirdYear = 2;
  guide_.pickTab("FichaAños", kThirdYear);
  sayTree();
  guide_.step("La misma zona en otro año", "otro-año");

  auto& tree = guide_.widget<QTreeWidget>("TreeView1");
  hands::askForMenu(*tree.viewport(), tree.visualItemRect(tree.topLevelItem(1)).center());
  guide_.step("El menú del árbol de indicadores", "menu-del-arbol");
  if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
  hands::press(tree, Qt::Key_A, Qt::ControlModifier);
  guide_.say("Copiado: " + std::to_string(QApplication::clipboard()->text().count(QLatin1Char('\n'))) + " líneas");
}

void Tour::search() {
  constexpr int kZones = 1;
  constexpr int kBeginning = 3;  // letters, from which the search starts
  const QString zone = guide_.widget<QComboBox>("CmbZonas").currentText();
  guide_.pickTab("FichaConsultasDatos", 1);
  guide_.pickItem("CmbBuscar", kZones);
  hands::type(guide_.widget("txtBuscar"), zone.left(kBeginning).toLower());
  guide_.step("La búsqueda de lugares por el principio de su nombre", "busqueda");
  auto& found = guide_.widget("ListaResultado");
  found.setFocus(Qt::TabFocusReason);
  hands::press(found, Qt::Key_Down);
  sayTree();
  guide_.step("Uno de los lugares encontrados", "encontrado");
}

void Tour::chooseTool(const char* control) {
  guide_.click(control);
  hands::pointAt(guide_.map());
}

void Tour::useTools() {
  const QPoint middle = guide_.map().rect().center();
  const QPoint beside = middle + QPoint(guide_.map().width() / 5, guide_.map().height() / 6);
  guide_.click("Image4(10)");
  guide_.step("El mapa completo", "mapa-completo");
  chooseTool("Image4(0)");
  hands::click(guide_.map(), beside);
  chooseTool("Image4(1)");
  hands::click(guide_.map(), middle);
  chooseTool("Image4(0)");
  hands::drag(guide_.map(), middle - QPoint(80, 60), beside);
  chooseTool("Image4(2)");
  hands::drag(guide_.map(), middle, beside);
  guide_.rest();
  guide_.step("Acercado con el recuadro y desplazado", "acercado");
  chooseTool("Image4(3)");
  hands::click(guide_.map());
  sayTree();
  guide_.step("Información de un lugar del mapa", "informacion");
  chooseTool("Image4(9)");
  hands::click(guide_.map(), beside);
  guide_.step("Una etiqueta puesta a mano", "etiqueta");
  chooseTool("Image4(5)");
  hands::click(guide_.map(), middle);
  hands::pointAt(guide_.map(), beside);
  guide_.step("Una distancia medida", "distancia");
  hands::doubleClick(guide_.map());
  chooseTool("Image4(6)");
  guide_.takeOut(guide_.map(), middle, guide_.map().rect().bottomRight(), "El mapa, arrastrado fuera de la ventana",
                 "arrastrado");
  guide_.openHelp("Image4(8)");
  guide_.click("Image4(3)");
}

void Tour::printMap() {
  guide_.expectDialog("imprimir-mapa");
  guide_.click("Image4(7)");
  guide_.finishDialogs();
  mustExist(guide_.printed());
  guide_.say("Impreso: " + guide_.printed().string());
}

void Tour::showThematicMaps() {
  guide_.pickTab("Ficha", kMaps);
  guide_.pickTab("FichaAños", 0);
  guide_.step("Ficha «Mapas»: el mapa temático, su selector y su leyenda", "mapas");
  const auto& frames = guide_.widget<QComboBox>("CmbMarco", "frmTematicos");
  const std::string frame = guide_.pickItem("CmbMarco", frames.count() / 2, "frmTematicos");
  guide_.step("Una provincia: " + frame, "mapas-provincia");
  guide_.pickItem("CmbMarco", 0, "frmTematicos");
  guide_.pickItem("CmbUnidad", 0, "frmTematicos");
  guide_.pickItem("CmbSexo", 1, "frmTematicos");
  const std::string indicator = guide_.pickItem("CmbIndicador", 2, "frmTematicos");
  hands::click(guide_.map());
  sayTree();
  guide_.step("Un indicador de los hombres por provincias: " + indicator, "mapas-hombres");
  guide_.pickTab("FichaAños", 1);
  guide_.click("Image2(11)");
  guide_.click("Image2(10)");
  guide_.step("El mismo mapa en otro año, sin leyenda ni selector", "mapas-solo");
  guide_.click("Image2(11)");
  guide_.click("Image2(10)");
}

void Tour::showTables() {
  guide_.pickTab("Ficha", kTables);
  guide_.step("Ficha «Tablas»", "tablas");
  guide_.pickFromMenu(guide_.page(), {60, 60}, "Buscar...");
  auto* words = guide_.widget("BarraBuscar").findChild<QLineEdit*>();
  if (words == nullptr) throw std::runtime_error("no hay dónde escribir lo que se busca");
  hands::type(*words, QStringLiteral("grupos"));
  guide_.step("Se busca una palabra en la tabla", "tabla-buscar");
  hands::press(*words, Qt::Key_Escape);
  guide_.expectDialog("imprimir-tabla");
  guide_.pickFromMenu(guide_.page(), {60, 60}, "Imprimir...");
  guide_.finishDialogs();
}

void Tour::exportTable() {
  guide_.click("ImgExportar");
  mustExist(guide_.exported());
  guide_.say("Exportada: " + guide_.exported().string());
}

void Tour::minimizeAndRestore() {
  FormWindow& main = guide_.window("frmPrincipal");
  main.showMinimized();
  hands::settle();
  guide_.say("Ventana minimizada");
  main.showNormal();
  guide_.step("Ventana restaurada", "restaurada");
}

void Tour::close() {
  guide_.click("LblSalir");
  if (!program_.isOver()) throw std::runtime_error("el programa no ha terminado");
  guide_.say("«Salir»: el programa ha terminado");
}

}  // namespace desktop

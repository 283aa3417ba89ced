#include "hosts/desktop/tour.h"

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QTreeWidget>
#include <ostream>
#include <stdexcept>

#include "hosts/desktop/user_hands.h"
#include "hosts/desktop/views/tab_pages.h"
#include "hosts/desktop/views/tab_row.h"

namespace desktop {
namespace {

constexpr int kLookForMessages = 20;  // milliseconds
constexpr int kRootsRead = 4;

template <class Widget>
Widget& found(Widget* widget, const std::string& name) {
  if (widget == nullptr) throw std::runtime_error("no está en pantalla: " + name);
  return *widget;
}

}  // namespace

Tour::Tour(DesktopProgram& program, std::filesystem::path pictures, std::ostream& log)
    : program_(program), pictures_(std::move(pictures)), log_(log) {
  QObject::connect(&messages_, &QTimer::timeout, &messages_, [this] { answerMessages(); });
  messages_.start(kLookForMessages);
}

bool Tour::walk() {
  try {
    showSplash();
    showStatistics();
    consult();
    visitOtherTabs();
    minimizeAndRestore();
    close();
  } catch (const std::runtime_error& problem) {
    log_ << "El recorrido se detiene: " << problem.what() << '\n';
    return false;
  }
  return true;
}

FormWindow& Tour::window(const char* formName) const {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    auto* form = dynamic_cast<FormWindow*>(top);
    if (form != nullptr && form->isVisible() && form->objectName() == QString::fromUtf8(formName)) return *form;
  }
  throw std::runtime_error("no está abierta la ventana " + std::string(formName));
}

template <class Widget>
Widget& Tour::widget(const char* name) const {
  auto* widget = window("frmPrincipal").findChild<Widget*>(QString::fromUtf8(name));
  if (widget != nullptr && !widget->isVisible()) widget = nullptr;
  return found(widget, name);
}

void Tour::step(const std::string& what, const std::string& picture) {
  hands::settle();
  ++steps_;
  const std::string number = QStringLiteral("%1").arg(steps_, 2, 10, QLatin1Char('0')).toStdString();
  const std::filesystem::path file = pictures_ / (number + "-" + picture + ".png");
  QWidget* shown = program_.host().frontWindow();
  if (shown == nullptr || !shown->grab().save(QString::fromStdString(file.string()))) {
    throw std::runtime_error("no se pudo guardar " + file.string());
  }
  log_ << number << "  " << what << "\n      " << file.string() << '\n';
}

void Tour::pickTab(const char* tabControl, int index) {
  auto* row = dynamic_cast<TabRow*>(&widget<QWidget>(tabControl));
  if (row == nullptr) row = widget<QWidget>(tabControl).findChild<TabRow*>();
  hands::click(found(row, tabControl), row->tabRect(index).center());
}

void Tour::pickItem(const char* combo, int index) {
  auto& list = widget<QComboBox>(combo);
  if (list.count() <= index) throw std::runtime_error("la lista está vacía: " + std::string(combo));
  hands::pick(list, index);
}

void Tour::readTree() const {
  const auto& tree = widget<QTreeWidget>("TreeView1");
  for (int i = 0; i < qMin(kRootsRead, tree.topLevelItemCount()); ++i) {
    log_ << "      · " << tree.topLevelItem(i)->text(0).toStdString() << '\n';
  }
}

void Tour::openFirstBranches() {
  auto& tree = widget<QTreeWidget>("TreeView1");
  hands::press(tree, Qt::Key_Home);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Right}) {
    hands::press(tree, key);
  }
}

void Tour::answerMessages() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) return;
  log_ << "      mensaje: " << box->text().toStdString() << '\n';
  QPushButton* answer = box->defaultButton();
  if (answer == nullptr) answer = qobject_cast<QPushButton*>(box->buttons().value(0));
  if (answer != nullptr) answer->click();
}

void Tour::showSplash() {
  program_.start();
  hands::settle();
  step("Se abre la portada", "portada");
}

void Tour::showStatistics() {
  hands::doubleClick(window("frmInicio"));
  step("Doble clic en la portada: la ventana principal con el mapa de estadísticas", "veldoria");
  hands::pointAt(widget<QWidget>("LblEstadisticas"));
  step("El menú de los informes anuales", "menu");
  hands::pointAt(widget<QWidget>("LblSalir"));
}

void Tour::consult() {
  constexpr int kData = 2;
  pickTab("Ficha", kData);
  step("Ficha «Datos»: el mapa del año", "datos");
  const auto& provinces = widget<QComboBox>("CmbProvincias");
  pickItem("CmbProvincias", provinces.count() / 2);
  const std::string province = provinces.currentText().toStdString();
  readTree();
  openFirstBranches();
  step("Provincia: " + province, "provincia");
  const auto& zones = widget<QComboBox>("CmbZonas");
  pickItem("CmbZonas", zones.count() / 2);
  const std::string zone = zones.currentText().toStdString();
  readTree();
  openFirstBranches();
  step("Zona básica: " + zone, "zona");
  constexpr int kThirdYear = 2;
  pickTab("FichaAños", kThirdYear);
  readTree();
  step("La misma zona en otro año", "otro-año");
  pickTab("FichaConsultasDatos", 1);
  step("La búsqueda de lugares", "busqueda");
}

void Tour::visitOtherTabs() {
  constexpr int kTables = 0;
  constexpr int kMaps = 1;
  pickTab("Ficha", kTables);
  step("Ficha «Tablas»", "tablas");
  pickTab("Ficha", kMaps);
  step("Ficha «Mapas»", "mapas");
}

void Tour::minimizeAndRestore() {
  FormWindow& main = window("frmPrincipal");
  main.showMinimized();
  hands::settle();
  log_ << "    Ventana minimizada\n";
  main.showNormal();
  step("Ventana restaurada", "restaurada");
}

void Tour::close() {
  hands::click(widget<QWidget>("LblSalir"));
  if (!program_.isOver()) throw std::runtime_error("el programa no ha terminado");
  log_ << "    «Salir»: el programa ha terminado\n";
}

}  // namespace desktop

// How long the program with its widgets takes for each letter that the user types into the search of a place:
//   typing APPFOLDER      prints the milliseconds of the slowest, from the key to the list painted, as the processor's
//                         time: nothing waits

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <algorithm>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/frm_principal.h"
#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/user_hands.h"

namespace {

constexpr int kDatos = 2;
constexpr int kSearch = 1;
constexpr int kPlaces = 40;
constexpr int kLetters = 8;

template <class Widget>
Widget& shown(const char* name) {
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() != QString::fromUtf8(name) || !widget->isVisible()) continue;
    if (auto* found = dynamic_cast<Widget*>(widget)) return *found;
    if (auto* inside = widget->findChild<Widget*>()) return *inside;
  }
  throw std::runtime_error(std::string("not shown: ") + name);
}

// The zones to type: spread evenly over the list.
std::vector<QString> places(const forms::ItemList& zones) {
  std::vector<QString> names;
  for (int i = 0; i < kPlaces; ++i) {
    names.push_back(
        QString::fromStdString(zones.items().at(static_cast<std::size_t>(i) * zones.items().size() / kPlaces)));
  }
  return names;
}

double millisecondsToType(QLineEdit& box, QListWidget& list, QChar letter) {
  const std::clock_t start = std::clock();
  QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
  QCoreApplication::sendEvent(&box, &press);
  desktop::hands::settle();
  list.repaint();
  return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  QApplication application(argc, argv);
  desktop::prepareApplication(application);
  desktop::UserPrograms programs;
  desktop::DesktopProgram program(std::filesystem::canonical(argv[1]).string(), programs);
  program.start();
  atlas::FrmPrincipal& form = program.atlas().frmPrincipal();
  program.calls().run([&] { program.atlas().frmInicio().userDoubleClick(); });
  program.calls().run([&] { form.Ficha.userPick(kDatos); });
  program.calls().run([&] { form.FichaConsultasDatos.userPick(kSearch); });
  program.calls().run([&] { form.CmbBuscar.userPick(1); });
  desktop::hands::settle();

  auto& box = shown<QLineEdit>("txtBuscar");
  auto& list = shown<QListWidget>("ListaResultado");
  std::vector<double> times;
  int found = 0;
  for (const QString& place : places(form.CmbZonas)) {
    box.clear();
    desktop::hands::settle();
    for (const QChar letter : place.left(kLetters)) times.push_back(millisecondsToType(box, list, letter));
    if (list.count() > 0) ++found;
  }
  if (found != kPlaces) throw std::runtime_error("a place was not found");
  std::cout << *std::ranges::max_element(times) << std::endl;
  std::_Exit(0);
}

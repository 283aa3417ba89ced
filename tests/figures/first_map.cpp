// The program from its start to the first painted map:
//   first_map APPFOLDER WAIT      double-clicks the splash away after WAIT milliseconds; prints a line when the
//                                 statistics map has been painted
//   first_map APPFOLDER memory    double-clicks it away at once, opens the map of a year, and prints the megabytes that
//                                 the program takes

#include <unistd.h>

#include <QApplication>
#include <QTimer>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/frm_principal.h"
#include "hosts/desktop/desktop_program.h"
#include "motor/window/map_widget.h"

namespace {

constexpr int kDatos = 2;
constexpr int kLookAgain = 1;  // milliseconds

bool isMapPainted() {
  for (QWidget* widget : QApplication::allWidgets()) {
    const auto* map = dynamic_cast<motor::MapWidget*>(widget);
    if (map != nullptr && map->isVisible() && map->renderCount() > 0) return true;
  }
  return false;
}

double residentMegabytes() {
  std::ifstream statm("/proc/self/statm");
  double size = 0;
  double resident = 0;
  statm >> size >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const std::string asked = argv[2];
  const bool asksMemory = asked == "memory";
  QApplication application(argc, argv);
  desktop::prepareApplication(application);
  desktop::UserPrograms programs;
  desktop::DesktopProgram program(std::filesystem::canonical(argv[1]).string(), programs);
  program.start();

  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    if (!isMapPainted()) return;
    std::cout << (asksMemory ? residentMegabytes() : 0.0) << std::endl;
    std::_Exit(0);
  });
  const auto leaveSplash = [&] {
    program.calls().run([&] { program.atlas().frmInicio().userDoubleClick(); });
    if (asksMemory) program.calls().run([&] { program.atlas().frmPrincipal().Ficha.userPick(kDatos); });
    watch.start(kLookAgain);
  };
  const int wait = asksMemory ? 0 : std::stoi(asked);
  if (wait == 0) {
    leaveSplash();
  } else {
    QTimer::singleShot(wait, Qt::PreciseTimer, &watch, leaveSplash);
  }
  return QApplication::exec();
}

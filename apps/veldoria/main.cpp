#include <QApplication>

#include "hosts/desktop/desktop_program.h"

// The atlas on the desktop. The study lies in the folder of the executable.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  desktop::prepareApplication(application);
  desktop::UserPrograms programs;
  desktop::DesktopProgram program(QApplication::applicationDirPath().toStdString(), programs);
  program.start();
  return program.isOver() ? 0 : QApplication::exec();
}

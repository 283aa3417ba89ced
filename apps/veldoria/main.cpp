#include <QApplication>
#include <memory>

#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/drawn_size.h"

// The atlas on the desktop. The study lies in the folder of the executable.
int main(int argc, char** argv) {
  const std::unique_ptr<QApplication> application = desktop::makeApplication(argc, argv);
  desktop::prepareApplication(*application);
  desktop::UserPrograms programs;
  desktop::DesktopProgram program(QApplication::applicationDirPath().toStdString(), programs);
  program.start();
  return program.isOver() ? 0 : QApplication::exec();
}

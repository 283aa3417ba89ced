#include <QApplication>
#include <QScreen>
#include <memory>

#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/window_placement.h"

namespace {

constexpr const char* kScale = "QT_SCALE_FACTOR";

// On a screen that the working window has no room on (a small one, or one whose scale is large) everything is drawn a
// little smaller; the toolkit wants to know before it starts.
std::unique_ptr<QApplication> makeApplication(int& argc, char** argv) {
  auto application = std::make_unique<QApplication>(argc, argv);
  const QScreen* screen = QGuiApplication::primaryScreen();
  const double scale = screen == nullptr ? 1 : desktop::scaleFor(screen->availableGeometry().size());
  if (scale == 1) return application;
  const QByteArray wanted = qgetenv(kScale);
  const double factor = wanted.toDouble() > 0 ? wanted.toDouble() : 1;
  application.reset();
  qputenv(kScale, QByteArray::number(factor * scale));
  application = std::make_unique<QApplication>(argc, argv);
  wanted.isEmpty() ? qunsetenv(kScale) : qputenv(kScale, wanted);  // for the programs that are started from here
  return application;
}

}  // namespace

// The atlas on the desktop. The study lies in the folder of the executable.
int main(int argc, char** argv) {
  const std::unique_ptr<QApplication> application = makeApplication(argc, argv);
  desktop::prepareApplication(*application);
  desktop::UserPrograms programs;
  desktop::DesktopProgram program(QApplication::applicationDirPath().toStdString(), programs);
  program.start();
  return program.isOver() ? 0 : QApplication::exec();
}

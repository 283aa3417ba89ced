#include "hosts/desktop/drawn_size.h"

#include <QScreen>
#include <algorithm>

#include "hosts/desktop/window_placement.h"

namespace desktop {
namespace {

constexpr const char* kToolkitFactor = "QT_SCALE_FACTOR";

double own = 1;

double leastRatio() {
  double least = QGuiApplication::primaryScreen()->devicePixelRatio();
  for (const QScreen* screen : QGuiApplication::screens()) least = std::min(least, screen->devicePixelRatio());
  return least;
}

}  // namespace

DrawnSize drawnSizeFor(QSize screen, double ratio) {
  const double scale = scaleFor(screen);
  DrawnSize size;
  size.toolkit = std::max(scale, 1 / ratio);
  size.own = std::min(1.0, scale / size.toolkit);
  return size;
}

// The toolkit wants to know its factor before it starts, and knows the screens when it has.
std::unique_ptr<QApplication> makeApplication(int& argc, char** argv) {
  auto application = std::make_unique<QApplication>(argc, argv);
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return application;
  const DrawnSize size = drawnSizeFor(screen->availableGeometry().size(), leastRatio());
  setOwnScale(size.own);
  if (size.toolkit == 1) return application;
  const QByteArray wanted = qgetenv(kToolkitFactor);
  const double factor = wanted.toDouble() > 0 ? wanted.toDouble() : 1;
  application.reset();
  qputenv(kToolkitFactor, QByteArray::number(factor * size.toolkit, 'g', 17));
  application = std::make_unique<QApplication>(argc, argv);
  wanted.isEmpty() ? qunsetenv(kToolkitFactor) : qputenv(kToolkitFactor, wanted);
  return application;
}

double ownScale() { return own; }

void setOwnScale(double scale) { own = scale; }

}  // namespace desktop

#pragma once

#include <QApplication>
#include <QSize>
#include <QSizeF>
#include <QtMath>
#include <memory>

// How much smaller than usual everything is drawn where the screen is small. The toolkit shrinks what has more than one
// device pixel a logical pixel; below that it cannot paint, and the program shrinks its forms, fonts and marks itself.
namespace desktop {

struct DrawnSize {
  double toolkit = 1;  // by which the toolkit's own factor is multiplied
  double own = 1;      // by which the program multiplies lengths on the screen, at most 1
};

// For a screen of so many logical pixels without the desktop's bars; `ratio` is the least number of device pixels that
// a logical pixel has on any screen.
[[nodiscard]] DrawnSize drawnSizeFor(QSize screen, double ratio);

// The toolkit's application, at the size that the screens ask for; ownScale follows. The environment, for the programs
// that are started from here, is as it was.
[[nodiscard]] std::unique_ptr<QApplication> makeApplication(int& argc, char** argv);

// By what the program multiplies its lengths: to be set before there are windows and before theme::install.
[[nodiscard]] double ownScale();
void setOwnScale(double scale);

// A usual length in pixels as the program draws it.
[[nodiscard]] inline double scaled(double pixels) { return pixels * ownScale(); }
[[nodiscard]] inline int scaled(int pixels) { return qRound(pixels * ownScale()); }
[[nodiscard]] inline QSize scaled(QSize pixels) { return {scaled(pixels.width()), scaled(pixels.height())}; }

}  // namespace desktop

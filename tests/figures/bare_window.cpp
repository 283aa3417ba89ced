// The rival of the program's start: a bare Qt window as large as the program's that paints as
// many polygons of as many points as the statistics map of the sample shows, once, prints a line, and ends.

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <cmath>
#include <iostream>
#include <numbers>

namespace {

constexpr int kPolygons = 9;
constexpr int kPoints = 328;  // on average
constexpr double kShareOfScreen = 0.92;

class BareWindow : public QWidget {
 public:
  BareWindow() {
    for (int i = 0; i < kPolygons; ++i) {
      QPolygonF polygon;
      for (int k = 0; k < kPoints; ++k) {
        const double angle = 2 * std::numbers::pi * k / kPoints;
        const double radius = 100 + 10 * std::sin(angle * 17);
        polygon << QPointF(150 + 150 * (i % 3) + radius * std::cos(angle),
                           150 + 150 * (i / 3.0) + radius * std::sin(angle));
      }
      polygons_.push_back(polygon);
    }
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(220, 230, 240));
    for (const QPolygonF& polygon : polygons_) painter.drawPolygon(polygon, Qt::OddEvenFill);
    QTimer::singleShot(0, qApp, [] {
      std::cout << "painted" << std::endl;
      QApplication::quit();
    });
  }

 private:
  QList<QPolygonF> polygons_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  BareWindow window;
  window.resize(window.screen()->availableGeometry().size() * kShareOfScreen);
  window.show();
  return QApplication::exec();
}

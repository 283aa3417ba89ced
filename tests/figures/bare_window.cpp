// The rival of the program's start: a bare Qt window that paints as many polygons of as many points as the statistics
// map shows, once, and ends.

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QWidget>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace {

constexpr int kPolygons = 9;
constexpr int kPoints = 500;

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
    QTimer::singleShot(0, qApp, [] { QApplication::quit(); });
  }

 private:
  QList<QPolygonF> polygons_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  BareWindow window;
  window.resize(1280, 860);
  window.show();
  return QApplication::exec();
}

// The map engine's own figures, each measured against a named rival in the same run:
//   engine_figures APPFOLDER YEAR [benchmark options]

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QApplication>
#include <QPainter>
#include <array>
#include <chrono>
#include <filesystem>
#include <iostream>

#include "engine_study.h"
#include "mapnik_map.h"
#include "motor/drawing/map_image.h"
#include "motor/drawing/map_painter.h"
#include "motor/session/headless_windows.h"
#include "motor/session/session.h"
#include "motor/tables/table_store.h"
#include "motor/window/map_widget.h"
#include "prepared_polygons.h"
#include "ratio_reporter.h"
#include "region_rings.h"

namespace {

using figures::engineStudy;
using figures::require;
using figures::somePoints;
using figures::zones;
using motor::Point;

// --- which region holds a point ---

void regionOfPoint(benchmark::State& state) {
  const auto table = zones();
  const motor::ObjectSet& objects = table->objectSet();
  const std::vector<Point> points = somePoints();
  std::size_t next = 0;
  for (auto _ : state) {
    const Point p = points[next++ % points.size()];
    std::size_t found = 0;
    objects.forObjectsIn({p.x, p.y, p.x, p.y}, [&](std::uint32_t i) { found += objects.covers(i, p) ? 1 : 0; });
    require(found > 0, "a point lies nowhere");
  }
}
BENCHMARK(regionOfPoint);

void regionOfPointByGeos(benchmark::State& state) {
  const figures::PreparedPolygons polygons(zones()->objectSet().objects());
  std::vector<figures::PreparedPolygons::Geometry> points;
  for (const Point& p : somePoints()) points.push_back(polygons.point(p));
  std::size_t next = 0;
  for (auto _ : state) {
    require(polygons.countAt(*points[next++ % points.size()]) > 0, "a point lies nowhere");
  }
}
BENCHMARK(regionOfPointByGeos);

// --- the picture of all zones ---

constexpr QSize kPicture(1200, 900);

struct OpenSession {
  motor::HeadlessWindows windows{kPicture.width(), kPicture.height()};
  motor::Session session{windows, {.roots = {engineStudy().folder}, .decimalSign = ",", .thousandsSign = "."}};

  void openYearMap() { session.run("run application \"" + engineStudy().yearMap() + "\""); }
  void openZonesMap() {
    session.run("Open Table \"" + engineStudy().tableFile("ZonasBasicas").string() + "\"");
    session.run("Map From ZonasBasicas" + engineStudy().year);
  }
  [[nodiscard]] const motor::Map& map() const { return session.mapWindows().front()->map(); }
};

void redraw(benchmark::State& state) {
  OpenSession open;
  open.openZonesMap();
  QImage picture(kPicture, QImage::Format_RGB32);
  motor::MapPainter map;
  for (auto _ : state) {
    picture.fill(Qt::white);
    QPainter painter(&picture);
    map.paint(painter, open.map(), kPicture, 1, motor::Quality::best);
  }
}
BENCHMARK(redraw)->Unit(benchmark::kMillisecond);

// The zones as polygons of the toolkit's, in pixels of the map that the engine opens.
std::vector<QPolygonF> pixelPolygons(const motor::Map& map) {
  std::vector<QPolygonF> polygons;
  for (const motor::ObjectPtr& zone : zones()->objectSet().objects()) {
    for (const auto& ring : figures::ringsOf(*zone)) {
      QPolygonF polygon;
      for (const Point& p : ring) {
        const Point pixel = map.toPixel(p);
        polygon << QPointF(pixel.x, pixel.y);
      }
      polygons.push_back(std::move(polygon));
    }
  }
  return polygons;
}

void redrawByQPainter(benchmark::State& state) {
  OpenSession open;
  open.openZonesMap();
  const std::vector<QPolygonF> polygons = pixelPolygons(open.map());
  QImage picture(kPicture, QImage::Format_RGB32);
  for (auto _ : state) {
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(QColor(200, 220, 240));
    for (const QPolygonF& polygon : polygons) painter.drawPolygon(polygon);
  }
}
BENCHMARK(redrawByQPainter)->Unit(benchmark::kMillisecond);

void redrawByMapnik(benchmark::State& state) {
  OpenSession open;
  open.openZonesMap();
  figures::MapnikMap map(zones()->objectSet().objects(), open.map().visibleBox(), kPicture.width(), kPicture.height());
  for (auto _ : state) map.paint();
  require(map.paintedPixels() > 10'000, "the rival painted nothing");
}
BENCHMARK(redrawByMapnik)->Unit(benchmark::kMillisecond);

// --- a workspace to its first picture ---

void toFirstPicture(OpenSession& open) {
  open.openYearMap();
  benchmark::DoNotOptimize(motor::renderMap(open.map(), kPicture, 1));
}

void workspaceCold(benchmark::State& state) {
  for (auto _ : state) {
    motor::TableStore::shared().clear();
    OpenSession open;
    toFirstPicture(open);
  }
}
BENCHMARK(workspaceCold)->Unit(benchmark::kMillisecond);

void workspaceAgain(benchmark::State& state) {
  {
    OpenSession open;
    toFirstPicture(open);
  }
  for (auto _ : state) {
    OpenSession open;
    toFirstPicture(open);
  }
}
BENCHMARK(workspaceAgain)->Unit(benchmark::kMillisecond);

// --- a window that is uncovered ---

double millisecondsOfAnExpose() {
  OpenSession open;
  open.openYearMap();
  motor::MapWidget widget(*open.session.mapWindows().front());
  widget.resize(kPicture);
  widget.show();
  QApplication::processEvents();
  widget.repaint();
  const int painted = widget.renderCount();
  constexpr int kTimes = 200;
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < kTimes; ++i) widget.repaint();
  const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - begin;
  require(widget.renderCount() == painted, "an expose painted the map anew");
  return spent.count() / kTimes;
}

// --- memory ---

// The bytes of a table's values, texts by their length and numbers by eight, and of its distinct objects' coordinates.
double bytesIn(const motor::BaseTable& table) {
  double bytes = 0;
  for (std::size_t column = 0; column < table.columns().size(); ++column) {
    for (motor::RowId row = 1; row <= table.rowCount(); ++row) {
      const std::string* text = table.text(row, column);
      bytes += text == nullptr ? sizeof(double) : static_cast<double>(text->size());
    }
  }
  for (const motor::ObjectPtr& object : table.objectSet().objects()) {
    bytes += static_cast<double>(object->points.size() * sizeof(Point));
  }
  return bytes;
}

// What the process takes for the year's tables, beside what is in them. Asked first, when nothing else is in memory.
void tellMemory() {
  constexpr std::array kTables = {"Provincias", "ZonasBasicas", "Veldoria"};
  static_cast<void>(
      motor::TableStore::shared().open(engineStudy().tableFile("Veldoria")));  // brings the library of formats along
  motor::TableStore::shared().clear();
  const auto allocated = [] {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
  };
  const double before = allocated();
  for (const char* base : kTables) static_cast<void>(motor::TableStore::shared().open(engineStudy().tableFile(base)));
  const double taken = allocated() - before;
  double content = 0;
  for (const char* base : kTables) content += bytesIn(*motor::TableStore::shared().open(engineStudy().tableFile(base)));
  std::cout << "\nmemory of the year's tables: " << taken / 1e6 << " MB for " << content / 1e6 << " MB of values and "
            << "coordinates: " << taken / content << " (goal: at most 1.3)\n";
}

const std::vector<figures::Figure> kFigures = {
    {"select by name : SQLite, indexed, in memory", "engineName", "sqliteName", 0.5},
    {"select by prefix, grouped : the same", "enginePrefix", "sqlitePrefix", 0.5},
    {"select by point : SQLite with its box tree and GEOS's prepared shapes", "enginePoint", "sqlitePoint", 0.5},
    {"means by province : SQLite, covering index, in memory", "engineGroups", "sqliteGroups", 0.5},
    {"names of a province, grouped : SQLite, covering index, in memory", "engineGroupsOfProvince",
     "sqliteGroupsOfProvince", 0.5},
    {"region of a point : prepared geometries in a tree of GEOS", "regionOfPoint", "regionOfPointByGeos", 1},
    {"redraw of all zones, 1200x900 : mapnik", "redraw", "redrawByMapnik", 0.5},
    {"redraw of all zones, 1200x900 : plain polygons of QPainter", "redraw", "redrawByQPainter", 0.5},
    {"year map opened again, to the first picture : opened cold", "workspaceAgain", "workspaceCold", 1.0 / 20},
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: engine_figures APPFOLDER YEAR [benchmark options]\n";
    return 2;
  }
  engineStudy() = {std::filesystem::canonical(argv[1]), argv[2]};
  QApplication application(argc, argv);
  tellMemory();
  figures::registerQuestions();
  int options = argc - 2;
  std::vector<char*> arguments = {argv[0]};
  for (int i = 3; i < argc; ++i) arguments.push_back(argv[i]);
  benchmark::Initialize(&options, arguments.data());
  figures::RatioReporter reporter(kFigures);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::cout << "\nexpose of an unchanged map: " << millisecondsOfAnExpose() << " ms (goal: under 2)\n";
  return 0;
}

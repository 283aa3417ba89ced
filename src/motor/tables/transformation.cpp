#include <cmath>
#include <limits>
#include <map>
#include <utility>

#include "motor/tables/coordinate_definition.h"
#include "motor/tables/coordinate_system.h"
#include "motor/tables/gdal.h"
#include "motor/tables/ogr_errors.h"

namespace motor {
namespace {

constexpr double kNoCoordinate = std::numeric_limits<double>::quiet_NaN();
constexpr int kStepsPerEdge = 20;  // how finely a box's outline is followed

using OgrTransformation = std::shared_ptr<void>;

// Null when the text is not understood. Axes are in the order of a map: x, y.
GdalSystem systemFrom(const std::string& wkt) {
  GdalSystem system(gdal().OSRNewSpatialReference(nullptr));
  gdal().OSRSetAxisMappingStrategy(system.get(), OAMS_TRADITIONAL_GIS_ORDER);
  char* text = const_cast<char*>(wkt.c_str());  // the pointer moves on, the text is only read
  return gdal().OSRImportFromWkt(system.get(), &text) == OGRERR_NONE ? std::move(system) : nullptr;
}

OgrTransformation createTransformation(const std::string& fromWkt, const std::string& toWkt) {
  const GdalSystem from = systemFrom(fromWkt);
  const GdalSystem to = systemFrom(toWkt);
  if (!from || !to) return {};
  return GdalTransformation(gdal().OCTNewCoordinateTransformation(from.get(), to.get()));
}

using TransformationsByWkt = std::map<std::pair<std::string, std::string>, OgrTransformation>;

// What a thread keeps is destroyed in reverse order: the library's own state of the thread must be there first, so that
// it outlives the transformations.
TransformationsByWkt afterTheLibrary() {
  static_cast<void>(systemFrom(CoordinateSystem().wkt()));
  return {};
}

// Making a transformation takes milliseconds, and one must not be used by two threads at a time.
OgrTransformation transformationOfThread(const std::string& fromWkt, const std::string& toWkt) {
  constexpr std::size_t kMostKept = 100;
  thread_local TransformationsByWkt known = afterTheLibrary();
  if (known.size() >= kMostKept) known.clear();
  const auto [entry, isNew] = known.try_emplace({fromWkt, toWkt});
  if (isNew) entry->second = createTransformation(fromWkt, toWkt);
  return entry->second;
}

}  // namespace

// The identity; a change of unit between plain grids; or a change of projection. Null `ogr` with `usesOgr`: nothing has
// an image, because one of the systems lies nowhere on the earth.
struct Transformation::Implementation {
  bool identity = false;
  bool usesOgr = true;
  double scale = 1;
  OgrTransformation ogr;
};

Transformation::Transformation(const CoordinateSystem& from, const CoordinateSystem& to)
    : implementation_(std::make_unique<Implementation>()) {
  implementation_->identity = from == to;
  if (implementation_->identity) return;
  if (!from.isEarth() && !to.isEarth()) {
    implementation_->usesOgr = false;
    implementation_->scale = from.metresPerUnit() / to.metresPerUnit();
  } else if (from.isEarth() && to.isEarth()) {
    const OgrErrors quiet;
    implementation_->ogr = transformationOfThread(from.wkt(), to.wkt());
  }
}

Transformation::~Transformation() = default;
Transformation::Transformation(Transformation&&) noexcept = default;
Transformation& Transformation::operator=(Transformation&&) noexcept = default;

bool Transformation::isIdentity() const { return implementation_->identity; }

Point Transformation::operator()(Point p) const {
  std::vector<Point> one{p};
  apply(one);
  return one.front();
}

void Transformation::apply(std::vector<Point>& points) const {
  if (implementation_->identity || points.empty()) return;
  if (!implementation_->usesOgr) {
    for (Point& p : points) p = {p.x * implementation_->scale, p.y * implementation_->scale};
    return;
  }
  std::vector<double> x(points.size());
  std::vector<double> y(points.size());
  std::vector<int> done(points.size(), 0);
  if (implementation_->ogr) {
    for (std::size_t i = 0; i < points.size(); ++i) {
      x[i] = points[i].x;
      y[i] = points[i].y;
    }
    const OgrErrors quiet;
    gdal().OCTTransformEx(implementation_->ogr.get(), static_cast<int>(points.size()), x.data(), y.data(), nullptr,
                          done.data());
  }
  for (std::size_t i = 0; i < points.size(); ++i) {
    const bool good = done[i] != 0 && std::isfinite(x[i]) && std::isfinite(y[i]);
    points[i] = good ? Point{x[i], y[i]} : Point{kNoCoordinate, kNoCoordinate};
  }
}

Box Transformation::operator()(const Box& box) const {
  if (implementation_->identity || box.isEmpty()) return box;
  std::vector<Point> outline;
  for (int i = 0; i <= kStepsPerEdge; ++i) {
    const double part = static_cast<double>(i) / kStepsPerEdge;
    const double x = box.minX + part * (box.maxX - box.minX);
    const double y = box.minY + part * (box.maxY - box.minY);
    outline.insert(outline.end(), {{x, box.minY}, {x, box.maxY}, {box.minX, y}, {box.maxX, y}});
  }
  apply(outline);
  Box result;
  for (const Point& p : outline) result.add(p);
  return result;
}

}  // namespace motor

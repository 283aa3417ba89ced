#include "motor/tables/flattened_geometry.h"

#include <algorithm>

#include "motor/tables/gdal.h"

namespace motor {
namespace {

// Appends the parts of a geometry that have the given dimension (0 points, 1 lines, 2 regions).
class Flattener {
 public:
  Flattener(MapObject& object, int dimension) : object_(object), dimension_(dimension) {}

  void add(OGRGeometryH geometry) {
    switch (library_.OGR_GT_Flatten(library_.OGR_G_GetGeometryType(geometry))) {
      case wkbPoint:
        return addPoint(geometry);
      case wkbLineString:
        return addLine(geometry);
      case wkbPolygon:
        return forEachMember(geometry, [this](OGRGeometryH ring) { addRing(ring); });
      case wkbMultiPoint:
      case wkbMultiLineString:
      case wkbMultiPolygon:
      case wkbGeometryCollection:
        return forEachMember(geometry, [this](OGRGeometryH member) { add(member); });
      default:
        return;
    }
  }

 private:
  template <typename Visit>
  void forEachMember(OGRGeometryH geometry, Visit visit) const {
    const int count = library_.OGR_G_GetGeometryCount(geometry);
    for (int i = 0; i < count; ++i) visit(library_.OGR_G_GetGeometryRef(geometry, i));
  }

  void addPoint(OGRGeometryH point) {
    if (dimension_ != 0 || library_.OGR_G_IsEmpty(point) != 0) return;
    if (object_.parts.empty()) object_.parts.push_back(0);
    addPoints(point, 1);
  }

  void addLine(OGRGeometryH line) {
    if (dimension_ == 1) addPart(line);
  }

  void addRing(OGRGeometryH ring) {
    if (dimension_ != 2) return;
    const std::size_t begin = object_.points.size();
    addPart(ring);
    if (object_.points.size() == begin) return;
    if (object_.points[begin] != object_.points.back()) object_.points.push_back(object_.points[begin]);
  }

  void addPart(OGRGeometryH line) {
    const int count = library_.OGR_G_GetPointCount(line);
    if (count == 0) return;
    object_.parts.push_back(static_cast<std::uint32_t>(object_.points.size()));
    addPoints(line, count);
  }

  void addPoints(OGRGeometryH geometry, int count) {
    const std::size_t begin = object_.points.size();
    object_.points.resize(begin + static_cast<std::size_t>(count));
    Point& first = object_.points[begin];
    constexpr int kStride = sizeof(Point);
    library_.OGR_G_GetPoints(geometry, &first.x, kStride, &first.y, kStride, nullptr, 0);
  }

  const Gdal& library_ = gdal();
  MapObject& object_;
  int dimension_;
};

constexpr MapObject::Kind kKindByDimension[] = {MapObject::Kind::point, MapObject::Kind::polyline,
                                                MapObject::Kind::region};

}  // namespace

void appendFlattened(OGRGeometryH geometry, MapObject& object) {
  if (gdal().OGR_G_HasCurveGeometry(geometry, TRUE) != 0) {
    const GdalGeometry linear(gdal().OGR_G_GetLinearGeometry(geometry, 0, nullptr));
    if (linear) appendFlattened(linear.get(), object);
    return;
  }
  const int dimension = std::clamp(gdal().OGR_G_GetDimension(geometry), 0, 2);
  object.kind = kKindByDimension[dimension];
  Flattener(object, dimension).add(geometry);
}

}  // namespace motor

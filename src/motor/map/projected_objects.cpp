#include "motor/map/projected_objects.h"

#include <cmath>
#include <mutex>
#include <utility>
#include <vector>

#include "motor/tables/base_table.h"

namespace motor {
namespace {

bool isFinite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

// Fills in the points that have an image; rings stay closed.
void setFinitePoints(const MapObject& original, const std::vector<Point>& images, MapObject& object) {
  object.points.clear();
  object.parts.clear();
  for (std::size_t part = 0; part < original.partCount(); ++part) {
    const std::size_t begin = object.points.size();
    for (std::size_t i = original.parts[part]; i < original.partEnd(part); ++i) {
      if (isFinite(images[i])) object.points.push_back(images[i]);
    }
    if (object.points.size() == begin) continue;
    object.parts.push_back(static_cast<std::uint32_t>(begin));
    const bool isOpen = object.points[begin] != object.points.back();
    if (object.kind == MapObject::Kind::region && isOpen) object.points.push_back(object.points[begin]);
  }
}

ObjectPtr projected(const MapObject& original, const Transformation& transformation) {
  auto object = std::make_shared<MapObject>(original);
  std::vector<Point> images = original.points;
  transformation.apply(images);
  setFinitePoints(original, images, *object);
  object->bounds = Box{};
  if (object->kind == MapObject::Kind::text && !object->points.empty()) {
    const Point foot = original.points.front();
    const Point top = transformation(Point{foot.x, foot.y + original.lineHeight});
    const Point image = object->points.front();
    if (isFinite(top)) object->lineHeight = std::hypot(top.x - image.x, top.y - image.y);
    object->bounds = transformation(original.bounds);
  } else {
    for (const Point& p : object->points) object->bounds.add(p);
  }
  return object;
}

std::shared_ptr<const ObjectSet> project(const Table& table, const CoordinateSystem& system) {
  const auto* base = dynamic_cast<const BaseTable*>(&table);
  const ObjectSet own = base == nullptr ? ObjectSet(table) : ObjectSet();
  const ObjectSet& set = base == nullptr ? own : base->objectSet();
  const Transformation transformation(table.coordinateSystem(), system);
  if (transformation.isIdentity()) return std::make_shared<const ObjectSet>(set);
  std::vector<ObjectPtr> objects;
  objects.reserve(set.objects().size());
  for (const ObjectPtr& object : set.objects()) objects.push_back(projected(*object, transformation));
  return std::make_shared<const ObjectSet>(set.withObjects(std::move(objects)));
}

// A table's objects by the systems that they were transformed to.
struct Projections {
  std::vector<std::pair<CoordinateSystem, std::shared_ptr<const ObjectSet>>> bySystem;
};

}  // namespace

std::shared_ptr<const ObjectSet> projectedObjects(const TablePtr& table, const CoordinateSystem& system) {
  if (table->coordinateSystem() == system) {
    // The set lives inside the table: whoever holds the one holds the other.
    const auto base = std::dynamic_pointer_cast<const BaseTable>(table);
    if (base) return {base, &base->objectSet()};
  }
  static std::mutex mutex;
  const std::scoped_lock lock(mutex);
  std::shared_ptr<void>& companion = table->companion();
  if (!companion) companion = std::make_shared<Projections>();
  auto& projections = static_cast<Projections*>(companion.get())->bySystem;
  for (const auto& [known, objects] : projections) {
    if (known == system) return objects;
  }
  projections.emplace_back(system, project(*table, system));
  return projections.back().second;
}

}  // namespace motor

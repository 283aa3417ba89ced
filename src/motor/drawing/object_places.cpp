#include "motor/drawing/object_places.h"

#include <algorithm>
#include <random>

namespace motor {

namespace {

constexpr std::uint32_t kMostTries = 50;  // for one dot, in a region that fills little of its bounds

std::vector<Point> strewn(const MapObject& region, std::uint32_t count, std::uint32_t seed) {
  std::vector<Point> dots;
  if (region.kind != MapObject::Kind::region || region.bounds.isEmpty()) return dots;
  std::minstd_rand random(seed + 1);
  std::uniform_real_distribution<double> across(region.bounds.minX, region.bounds.maxX);
  std::uniform_real_distribution<double> up(region.bounds.minY, region.bounds.maxY);
  for (std::uint64_t tries = std::uint64_t{count} * kMostTries; dots.size() < count && tries > 0; --tries) {
    const double x = across(random);
    const Point dot{x, up(random)};
    if (contains(region, dot)) dots.push_back(dot);
  }
  return dots;
}

}  // namespace

const std::vector<Point>& ObjectPlaces::centres(const std::shared_ptr<const ObjectSet>& set) {
  const auto known =
      std::find_if(centres_.begin(), centres_.end(), [&](const Centres& entry) { return entry.set.lock() == set; });
  if (known != centres_.end()) return *known->points;
  std::vector<Point> points;
  for (const ObjectPtr& object : set->objects()) points.push_back(centroid(*object));
  centres_.push_back({set, std::make_unique<const std::vector<Point>>(std::move(points))});
  return *centres_.back().points;
}

const std::vector<std::vector<Point>>& ObjectPlaces::dots(const std::shared_ptr<const ObjectSet>& set,
                                                          const std::vector<std::uint32_t>& counts) {
  const auto known = std::find_if(dots_.begin(), dots_.end(),
                                  [&](const Dots& entry) { return entry.set.lock() == set && entry.counts == counts; });
  if (known != dots_.end()) return *known->points;
  std::vector<std::vector<Point>> points;
  for (std::uint32_t i = 0; i < set->objects().size(); ++i) {
    points.push_back(strewn(*set->objects()[i], i < counts.size() ? counts[i] : 0, i));
  }
  dots_.push_back({set, counts, std::make_unique<const std::vector<std::vector<Point>>>(std::move(points))});
  return *dots_.back().points;
}

void ObjectPlaces::dropUnused() {
  std::erase_if(centres_, [](const Centres& entry) { return entry.set.expired(); });
  std::erase_if(dots_, [](const Dots& entry) { return entry.set.expired(); });
}

}  // namespace motor

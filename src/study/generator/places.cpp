#include "study/generator/places.h"

#include <algorithm>

#include "study/generator/point_grid.h"

namespace study::generator {

Places choosePlaces(Random& random, const Outline& outline, std::size_t provinces, std::size_t zones, double spacing) {
  constexpr double kApart = 1.2;  // spacings
  Places places;
  const std::vector<Point> land = scatter(random, outline, {}, 4'000 + 100 * provinces);
  for (const Point& site : spreadSites(random, land, provinces)) {
    places.capitals.push_back(jittered(random, site, 0.75 * spacing, outline));
  }
  random.shuffle(places.capitals);

  PointGrid taken(extent({outline.line()}), zones);
  for (std::size_t i = 0; i < places.capitals.size(); ++i) taken.insert(i, places.capitals[i]);
  const std::size_t towns = zones / 10;
  for (std::size_t trial = 0; trial < 50 * towns && places.towns.size() < towns; ++trial) {
    const Point town = land[random.below(land.size())];
    if (taken.hasWithin(town, kApart * spacing)) continue;
    taken.insert(provinces + places.towns.size(), town);
    places.towns.push_back(town);
  }
  return places;
}

std::vector<Settlement> settlements(const Places& places, double spacing) {
  std::vector<Settlement> result;
  for (const Point& capital : places.capitals) result.push_back({capital, 45, 0.43 * spacing});
  for (const Point& town : places.towns) result.push_back({town, 6, 0.37 * spacing});
  return result;
}

}  // namespace study::generator

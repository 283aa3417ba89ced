#include "study/generator/zone_names.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "study/generator/place_names.h"
#include "study/generator/point_grid.h"

namespace study::generator {

namespace {

// The city's zone at its middle is "Centro"; those around it are named by quarters, so that all together lie as nearly
// as they can where their names say. Four zones at most lie around the middle.
void nameCity(const std::vector<RegionZone*>& zones, const std::string& city) {
  struct Quarter {
    const char* name;
    Point direction;
  };
  static constexpr std::array<Quarter, 4> kQuarters{
      {{"Este", {1, 0}}, {"Norte", {0, 1}}, {"Oeste", {-1, 0}}, {"Sur", {0, -1}}}};
  const Point middle = zones.front()->site;
  std::array<std::size_t, 4> order{0, 1, 2, 3};
  std::array<std::size_t, 4> best = order;
  double bestFit = -std::numeric_limits<double>::infinity();
  do {
    double fit = 0;
    for (std::size_t i = 1; i < zones.size(); ++i) {
      const Point& site = zones[i]->site;
      const Point& towards = kQuarters[order[i - 1]].direction;
      fit += ((site.x - middle.x) * towards.x + (site.y - middle.y) * towards.y) / distance(site, middle);
    }
    if (fit > bestFit) {
      bestFit = fit;
      best = order;
    }
  } while (std::next_permutation(order.begin(), order.end()));
  zones.front()->name = city + " Centro";
  for (std::size_t i = 1; i < zones.size(); ++i) zones[i]->name = city + " " + kQuarters[best[i - 1]].name;
}

// The zones of each province, nearest to its capital first.
std::vector<std::vector<RegionZone*>> zonesAroundCapitals(Region& region, const std::vector<Point>& capitals) {
  std::vector<std::vector<RegionZone*>> zones(capitals.size());
  for (RegionZone& zone : region.zones) zones[zone.province].push_back(&zone);
  for (std::size_t province = 0; province < zones.size(); ++province) {
    const Point capital = capitals[province];
    // Zones stand in one vector: their addresses decide between equally near ones.
    std::sort(zones[province].begin(), zones[province].end(), [&](const RegionZone* a, const RegionZone* b) {
      return std::pair(squaredDistance(a->site, capital), a) < std::pair(squaredDistance(b->site, capital), b);
    });
  }
  return zones;
}

}  // namespace

void settle(Random& random, Region& region, const Places& places) {
  std::vector<Point> sites;
  for (const RegionZone& zone : region.zones) sites.push_back(zone.site);
  const PointGrid grid(sites);
  for (const Point& town : places.towns) region.zones[*grid.nearest(town)].settled = Settled::town;

  std::size_t province = 0;
  for (std::vector<RegionZone*>& zones : zonesAroundCapitals(region, places.capitals)) {
    const std::size_t wanted = 3 + random.below(3);
    zones.resize(std::clamp<std::size_t>(zones.size() / 2, 1, wanted));
    for (RegionZone* zone : zones) zone->settled = Settled::city;
    nameCity(zones, region.provinces[province++]);
  }
}

void nameZones(Random& random, Region& region) {
  std::vector<std::string> taken = region.provinces;
  std::vector<RegionZone*> nameless;
  for (RegionZone& zone : region.zones) {
    zone.name.empty() ? nameless.push_back(&zone) : taken.push_back(zone.name);
  }
  std::vector<std::string> names = placeNames(nameless.size(), taken);
  random.shuffle(names);
  for (std::size_t i = 0; i < nameless.size(); ++i) nameless[i]->name = std::move(names[i]);
}

}  // namespace study::generator

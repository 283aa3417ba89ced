#include "study/sample/sample_region.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

#include "study/random.h"
#include "study/sample/meander.h"
#include "study/sample/outline.h"
#include "study/sample/place_names.h"
#include "study/sample/regions.h"
#include "study/sample/sites.h"
#include "study/sample/voronoi.h"
#include "text/collation.h"

namespace study {

namespace {

constexpr Point kCentre{500'000, 4'540'000};
constexpr double kMeanRadius = 185'000;
constexpr std::size_t kProvinces = 8;
constexpr std::size_t kTowns = 12;
constexpr std::size_t kZones = 120;
// Zones are made of smaller cells, as real ones are of parishes, which gives them their uneven shapes.
constexpr std::size_t kCells = 640;
constexpr std::array<std::size_t, kProvinces> kCityZones{5, 5, 4, 4, 4, 3, 3, 3};

struct Places {
  std::vector<Point> capitals;
  std::vector<Point> towns;

  [[nodiscard]] std::vector<Settlement> settlements() const {
    std::vector<Settlement> result;
    for (const Point& capital : capitals) result.push_back({capital, 45, 13'000});
    for (const Point& town : towns) result.push_back({town, 6, 11'000});
    return result;
  }
};

Point jittered(Random& random, Point p, double metres, const Outline& outline) {
  const Point moved{p.x + metres * random.between(-1, 1), p.y + metres * random.between(-1, 1)};
  return outline.contains(moved) ? moved : p;
}

Places choosePlaces(Random& random, const Outline& outline) {
  Places places;
  const std::vector<Point> land = scatter(random, outline, {}, 4'000);
  for (const Point& site : spreadSites(random, land, kProvinces)) {
    places.capitals.push_back(jittered(random, site, 22'000, outline));
  }
  while (places.towns.size() < kTowns) {
    const Point town = land[random.below(land.size())];
    constexpr double kApart = 35'000;
    const Point capital = places.capitals[nearest(places.capitals, town)];
    const bool crowded =
        !places.towns.empty() && squaredDistance(places.towns[nearest(places.towns, town)], town) < kApart * kApart;
    if (!crowded && squaredDistance(capital, town) > kApart * kApart) places.towns.push_back(town);
  }
  return places;
}

// The cells' coverage; their borders wind.
Coverage makeCells(Random& random, const std::vector<Point>& sites, const Outline& outline, std::uint64_t seed) {
  std::vector<Point> all = sites;
  const std::vector<Point> around = sitesAround(random, outline, sites);
  all.insert(all.end(), around.begin(), around.end());
  const int count = static_cast<int>(sites.size());
  std::vector<Border> borders;
  for (const VoronoiEdge& edge : voronoiEdges(all)) {
    if (edge.left >= count && edge.right >= count) continue;
    borders.push_back({meander(edge.start, edge.end, all[static_cast<std::size_t>(edge.left)],
                               all[static_cast<std::size_t>(edge.right)], seed),
                       edge.left < count ? edge.left : kOutside, edge.right < count ? edge.right : kOutside});
  }
  return {std::move(borders), count};
}

// The nearest cell to each point, no cell twice.
std::vector<int> seedCells(const std::vector<Point>& cells, const std::vector<Point>& points) {
  std::vector<int> seeds;
  for (const Point& p : points) {
    int best = -1;
    for (std::size_t c = 0; c < cells.size(); ++c) {
      const int cell = static_cast<int>(c);
      if (std::find(seeds.begin(), seeds.end(), cell) != seeds.end()) continue;
      if (best < 0 || squaredDistance(cells[c], p) < squaredDistance(cells[static_cast<std::size_t>(best)], p)) {
        best = cell;
      }
    }
    seeds.push_back(best);
  }
  return seeds;
}

// A zone before it has its name and place in the order.
struct Draft {
  int cell;  // of the zones' coverage as grown
  int province;
  Point site;
  Settled settled = Settled::country;
  std::string name;
};

// The city's zone at its middle is "Centro"; those around it are named by quarters, so that all together lie as nearly
// as they can where their names say. Four zones at most lie around the middle.
void nameCity(const std::vector<Draft*>& zones, const std::string& city) {
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
      fit += ((site.x - middle.x) * towards.x + (site.y - middle.y) * towards.y) /
             std::sqrt(squaredDistance(site, middle));
    }
    if (fit > bestFit) {
      bestFit = fit;
      best = order;
    }
  } while (std::next_permutation(order.begin(), order.end()));
  zones.front()->name = city + " Centro";
  for (std::size_t i = 1; i < zones.size(); ++i) zones[i]->name = city + " " + kQuarters[best[i - 1]].name;
}

void settle(std::vector<Draft>& zones, const Places& places) {
  for (const Point& town : places.towns) {
    const auto closest = std::min_element(zones.begin(), zones.end(), [&](const Draft& a, const Draft& b) {
      return squaredDistance(a.site, town) < squaredDistance(b.site, town);
    });
    closest->settled = Settled::town;
  }
  for (std::size_t province = 0; province < places.capitals.size(); ++province) {
    std::vector<Draft*> own;
    for (Draft& zone : zones) {
      if (zone.province == static_cast<int>(province)) own.push_back(&zone);
    }
    const Point capital = places.capitals[province];
    std::sort(own.begin(), own.end(), [&](const Draft* a, const Draft* b) {
      return squaredDistance(a->site, capital) < squaredDistance(b->site, capital);
    });
    own.resize(std::min(own.size(), kCityZones[province]));
    for (Draft* zone : own) zone->settled = Settled::city;
    nameCity(own, std::string(provinceNames()[province]));
  }
}

void nameOthers(Random& random, std::vector<Draft>& zones) {
  std::vector<std::string_view> names = placeNames();
  random.shuffle(names);
  for (Draft& zone : zones) {
    if (!zone.name.empty()) continue;
    if (names.empty()) throw std::logic_error("there are more zones than place names");
    zone.name = names.back();
    names.pop_back();
  }
}

SampleRegion inOrder(std::vector<Draft> zones, const Coverage& grown) {
  std::sort(zones.begin(), zones.end(), [](const Draft& a, const Draft& b) {
    return a.province != b.province ? a.province < b.province : text::collate(a.name, b.name) < 0;
  });
  SampleRegion region;
  region.provinces.assign(provinceNames().begin(), provinceNames().end());
  std::vector<int> position(zones.size());
  for (std::size_t i = 0; i < zones.size(); ++i) {
    position[static_cast<std::size_t>(zones[i].cell)] = static_cast<int>(i);
    region.zones.push_back({zones[i].name, zones[i].province});
    region.settled.push_back(zones[i].settled);
    region.sites.push_back(zones[i].site);
  }
  region.coverage = grown.grouped(position, static_cast<int>(zones.size()));
  return region;
}

}  // namespace

SampleRegion makeRegion(std::uint64_t seed) {
  Random random(seed);
  const Outline outline(random, kCentre, kMeanRadius);
  Places places = choosePlaces(random, outline);
  random.shuffle(places.capitals);
  const std::vector<Point> people = scatter(random, outline, places.settlements(), 22'000);

  std::vector<Point> cellSites = spreadSites(random, people, kCells);
  for (Point& site : cellSites) site = jittered(random, site, 1'200, outline);
  const Coverage cells = makeCells(random, cellSites, outline, seed);

  const std::vector<Point> zoneSites = spreadSites(random, people, kZones);
  const std::vector<int> zoneOf =
      growRegions(random, cellSites, cells.neighbours(), seedCells(cellSites, zoneSites), 0.9);
  const Coverage grown = cells.grouped(zoneOf, static_cast<int>(kZones));
  const std::vector<int> provinceOf =
      growRegions(random, zoneSites, grown.neighbours(), seedCells(zoneSites, places.capitals), 0.35);

  std::vector<Draft> zones;
  for (std::size_t z = 0; z < kZones; ++z)
    zones.push_back({static_cast<int>(z), provinceOf[z], zoneSites[z], Settled::country, {}});
  settle(zones, places);
  nameOthers(random, zones);
  return inOrder(std::move(zones), grown);
}

}  // namespace study

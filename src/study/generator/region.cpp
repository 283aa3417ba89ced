#include "study/generator/region.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "study/generator/coverage.h"
#include "study/generator/meander.h"
#include "study/generator/outline.h"
#include "study/generator/place_names.h"
#include "study/generator/places.h"
#include "study/generator/random.h"
#include "study/generator/regions.h"
#include "study/generator/sites.h"
#include "study/generator/voronoi.h"
#include "study/generator/zone_names.h"
#include "text/collation.h"

namespace study::generator {

namespace {

constexpr Point kCentre{500'000, 4'540'000};

// Metres. A region of more zones is larger, but its zones are smaller.
double radiusFor(std::size_t zones) { return std::round(185'000 * std::pow(static_cast<double>(zones) / 120, 0.15)); }

// Zones are made of smaller cells, as real ones are of parishes, which gives them their uneven shapes. A cell takes
// some ten points of its zone's outline at least.
std::size_t cellsFor(const GeneratorSettings& settings) {
  return settings.zones * std::clamp<std::size_t>(settings.vertices / 10, 3, 5);
}

// The region before its borders wind.
struct Plan {
  std::vector<Point> cells;         // those inside the region first
  std::vector<VoronoiEdge> edges;   // of the cells inside
  std::vector<std::size_t> zoneOf;  // by cell inside

  [[nodiscard]] std::size_t zone(std::size_t cell) const { return cell < zoneOf.size() ? zoneOf[cell] : kOutside; }
};

using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

Pairs touchingCells(const Plan& plan, std::size_t inside) {
  Pairs pairs;
  for (const VoronoiEdge& edge : plan.edges) {
    if (edge.left < inside && edge.right < inside) pairs.emplace_back(edge.left, edge.right);
  }
  return pairs;
}

Pairs touchingZones(const Plan& plan) {
  Pairs pairs;
  for (const VoronoiEdge& edge : plan.edges) {
    const std::size_t left = plan.zone(edge.left);
    const std::size_t right = plan.zone(edge.right);
    if (left != right && left != kOutside && right != kOutside) pairs.emplace_back(left, right);
  }
  return pairs;
}

Plan makePlan(Random& random, const Outline& outline, const std::vector<Point>& people, std::size_t count,
              double spacing, const std::vector<Point>& zoneSites) {
  Plan plan;
  plan.cells = spreadSites(random, people, count);
  for (Point& site : plan.cells) site = jittered(random, site, 0.1 * spacing, outline);
  makeDistinct(plan.cells);
  const std::vector<Point> around = sitesAround(random, outline, plan.cells, 0.8 * spacing);
  const std::vector<Point> inside = plan.cells;
  plan.cells.insert(plan.cells.end(), around.begin(), around.end());
  plan.edges = voronoiEdges(plan.cells, count, 0.015 * spacing);
  plan.zoneOf =
      growRegions(random, inside, neighbours(touchingCells(plan, count), count), seedCells(inside, zoneSites), 0.9);
  return plan;
}

// The edges between zones, and between zones and the outside.
std::vector<VoronoiEdge> zoneEdges(const Plan& plan) {
  std::vector<VoronoiEdge> edges;
  for (const VoronoiEdge& edge : plan.edges) {
    if (plan.zone(edge.left) != plan.zone(edge.right)) edges.push_back(edge);
  }
  return edges;
}

// The distance between points along the borders with which all zones' outlines together have this many points.
double stepFor(const Plan& plan, const std::vector<VoronoiEdge>& edges, std::size_t vertices) {
  const auto count = [&](double step) {
    std::size_t sum = 0;
    for (const VoronoiEdge& edge : edges) {
      const bool shared = plan.zone(edge.left) != kOutside && plan.zone(edge.right) != kOutside;
      sum += (shared ? 2u : 1u) << halvings(distance(edge.start, edge.end), step);
    }
    return sum;
  };
  double low = 1;
  double high = 200'000;
  for (int i = 0; i < 40; ++i) {
    const double middle = (low + high) / 2;
    (count(middle) > vertices ? low : high) = middle;
  }
  return high;
}

std::vector<Area> zoneAreas(const Plan& plan, const GeneratorSettings& settings) {
  const std::vector<VoronoiEdge> edges = zoneEdges(plan);
  const double step = stepFor(plan, edges, settings.vertices * settings.zones);
  std::vector<Border> borders;
  for (const VoronoiEdge& edge : edges) {
    const EdgeRoom room{edge.start, edge.end, plan.cells[edge.left], plan.cells[edge.right]};
    borders.push_back({meander(room, halvings(distance(edge.start, edge.end), step), settings.seed),
                       plan.zone(edge.left), plan.zone(edge.right)});
  }
  return outlines(borders, settings.zones);
}

void sortByName(std::vector<RegionZone>& zones) {
  std::sort(zones.begin(), zones.end(), [](const RegionZone& a, const RegionZone& b) {
    return a.province != b.province ? a.province < b.province : std::is_lt(text::collate(a.name, b.name));
  });
}

}  // namespace

Region makeRegion(const GeneratorSettings& settings) {
  check(settings);
  Random random(settings.seed);
  Region region;
  region.radius = radiusFor(settings.zones);
  const Outline outline(random, kCentre, region.radius);
  const double land = std::numbers::pi * region.radius * region.radius;
  const double zoneSpacing = std::sqrt(land / static_cast<double>(settings.zones));
  const std::size_t cells = cellsFor(settings);
  const double cellSpacing = std::sqrt(land / static_cast<double>(cells));

  const Places places = choosePlaces(random, outline, settings.provinces, settings.zones, zoneSpacing);
  const std::vector<Point> people = scatter(random, outline, settlements(places, zoneSpacing), 32 * cells);
  const std::vector<Point> sites = spreadSites(random, people, settings.zones);
  const Plan plan = makePlan(random, outline, people, cells, cellSpacing, sites);
  const std::vector<std::size_t> provinceOf = growRegions(
      random, sites, neighbours(touchingZones(plan), settings.zones), seedCells(sites, places.capitals), 0.35);
  std::vector<Area> areas = zoneAreas(plan, settings);

  region.provinces = provinceNames(settings.provinces);
  for (std::size_t zone = 0; zone < settings.zones; ++zone) {
    region.zones.push_back({{}, provinceOf[zone], Settled::country, sites[zone], std::move(areas[zone])});
  }
  settle(random, region, places);
  nameZones(random, region);
  sortByName(region.zones);
  return region;
}

}  // namespace study::generator

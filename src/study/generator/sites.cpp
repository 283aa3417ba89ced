#include "study/generator/sites.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>
#include <utility>

#include "study/generator/point_grid.h"

namespace study::generator {

namespace {

Point inBox(Random& random, const Extent& box) {
  return {random.between(box.minX, box.maxX), random.between(box.minY, box.maxY)};
}

// `weight` e^-(distance/reach)^2 as a bell curve: its deviation, and its volume as square metres of country.
Point inSettlement(Random& random, const Settlement& settlement) {
  const double deviation = settlement.reach / std::numbers::sqrt2;
  return {settlement.place.x + deviation * random.normal(), settlement.place.y + deviation * random.normal()};
}
double volume(const Settlement& settlement) {
  return settlement.weight * std::numbers::pi * settlement.reach * settlement.reach;
}

}  // namespace

std::vector<Point> scatter(Random& random, const Outline& outline, const std::vector<Settlement>& settlements,
                           std::size_t count) {
  const Area land{outline.line()};
  const Extent box = extent(land);
  std::vector<double> upTo{squareMetres(land)};
  for (const Settlement& settlement : settlements) upTo.push_back(upTo.back() + volume(settlement));

  std::vector<Point> points;
  points.reserve(count);
  while (points.size() < count) {
    const double share = random.unit() * upTo.back();
    const auto part = static_cast<std::size_t>(std::upper_bound(upTo.begin(), upTo.end(), share) - upTo.begin());
    Point p;
    do {
      p = onWholeMetres(part == 0 ? inBox(random, box) : inSettlement(random, settlements[part - 1]));
    } while (!outline.contains(p));
    points.push_back(p);
  }
  return points;
}

Point jittered(Random& random, Point p, double metres, const Outline& outline) {
  const Point moved = onWholeMetres({p.x + metres * random.between(-1, 1), p.y + metres * random.between(-1, 1)});
  return outline.contains(moved) ? moved : p;
}

std::vector<Point> spreadSites(Random& random, const std::vector<Point>& sample, std::size_t count) {
  constexpr int kRounds = 12;
  std::vector<Point> sites;
  for (std::size_t i = 0; i < count; ++i) sites.push_back(sample[random.below(sample.size())]);
  for (int round = 0; round < kRounds; ++round) {
    makeDistinct(sites);
    const PointGrid grid(sites);
    std::vector<Point> sums(count);
    std::vector<double> members(count, 0);
    for (const Point& p : sample) {
      const std::size_t site = *grid.nearest(p);
      sums[site].x += p.x;
      sums[site].y += p.y;
      members[site] += 1;
    }
    for (std::size_t i = 0; i < count; ++i) {
      const Point middle{sums[i].x / members[i], sums[i].y / members[i]};
      sites[i] = members[i] > 0 ? onWholeMetres(middle) : sample[random.below(sample.size())];
    }
  }
  makeDistinct(sites);
  return sites;
}

void makeDistinct(std::vector<Point>& points) {
  std::set<std::pair<double, double>> taken;
  for (Point& p : points) {
    while (!taken.insert({p.x, p.y}).second) p.x += 1;
  }
}

std::vector<Point> sitesAround(Random& random, const Outline& outline, const std::vector<Point>& inside, double apart) {
  const double band = 5 * apart;
  Extent box = extent({outline.line()});
  box = {box.minX - band, box.minY - band, box.maxX + band, box.maxY + band};
  PointGrid taken(box, 2 * inside.size());
  for (std::size_t i = 0; i < inside.size(); ++i) taken.insert(i, inside[i]);

  // Darts at random points of the band; so many that hardly one more would find room.
  double length = 0;
  const Ring& line = outline.line();
  for (std::size_t i = 0; i < line.size(); ++i) length += distance(line[i], line[(i + 1) % line.size()]);
  const auto darts = static_cast<std::size_t>(40 * 2 * band * length / (apart * apart));
  std::vector<Point> around;
  for (std::size_t dart = 0; dart < darts; ++dart) {
    const Point shore = line[random.below(line.size())];
    const Point p = onWholeMetres({shore.x + band * random.between(-1, 1), shore.y + band * random.between(-1, 1)});
    if (outline.contains(p) || taken.hasWithin(p, apart)) continue;
    taken.insert(inside.size() + around.size(), p);
    around.push_back(p);
  }
  return around;
}

}  // namespace study::generator

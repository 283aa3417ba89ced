#include "study/sample/sites.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace study {

namespace {

double density(Point p, const std::vector<Settlement>& settlements) {
  double sum = 1;
  for (const Settlement& settlement : settlements) {
    sum += settlement.weight * std::exp(-squaredDistance(p, settlement.place) / (settlement.reach * settlement.reach));
  }
  return sum;
}

}  // namespace

std::vector<Point> scatter(Random& random, const Outline& outline, const std::vector<Settlement>& settlements,
                           std::size_t count) {
  const Extent box = extent({outline.line()});
  double highest = 1;
  for (const Settlement& settlement : settlements) highest = std::max(highest, density(settlement.place, settlements));
  std::vector<Point> points;
  while (points.size() < count) {
    const Point p{random.between(box.minX, box.maxX), random.between(box.minY, box.maxY)};
    const double threshold = random.unit() * highest;
    if (outline.contains(p) && density(p, settlements) >= threshold) points.push_back(p);
  }
  return points;
}

std::vector<Point> spreadSites(Random& random, const std::vector<Point>& sample, std::size_t count) {
  constexpr int kRounds = 12;
  std::vector<Point> sites;
  for (std::size_t i = 0; i < count; ++i) sites.push_back(sample[random.below(sample.size())]);
  for (int round = 0; round < kRounds; ++round) {
    std::vector<Point> sums(count);
    std::vector<int> members(count, 0);
    for (const Point& p : sample) {
      const std::size_t site = nearest(sites, p);
      sums[site].x += p.x;
      sums[site].y += p.y;
      ++members[site];
    }
    for (std::size_t i = 0; i < count; ++i) {
      if (members[i] > 0) sites[i] = {sums[i].x / members[i], sums[i].y / members[i]};
    }
  }
  return sites;
}

std::vector<Point> sitesAround(Random& random, const Outline& outline, const std::vector<Point>& inside) {
  constexpr double kBand = 55'000;
  constexpr double kApart = 10'500;
  constexpr int kDarts = 40'000;
  const Extent box = extent({outline.line()});
  std::vector<Point> taken = inside;
  for (int dart = 0; dart < kDarts; ++dart) {
    const Point p{random.between(box.minX - kBand, box.maxX + kBand),
                  random.between(box.minY - kBand, box.maxY + kBand)};
    if (outline.contains(p) || squaredDistance(taken[nearest(taken, p)], p) < kApart * kApart) continue;
    if (squaredDistance(outline.line()[nearest(outline.line(), p)], p) < kBand * kBand) taken.push_back(p);
  }
  return {taken.begin() + static_cast<std::ptrdiff_t>(inside.size()), taken.end()};
}

}  // namespace study

#include "study/sample/meander.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "study/random.h"

namespace study {

namespace {

// The quadrilateral that a line from `start` to `end` may use; left and right are its other corners.
struct Room {
  Point start;
  Point left;
  Point end;
  Point right;
};

void wind(Random& random, const Room& room, int depth, std::vector<Point>& line) {
  if (depth == 0) return;
  const double across = random.between(0.2, 0.8);
  const double along = random.between(0.35, 0.65);
  const Point startRight = between(room.start, room.right, across);
  const Point leftEnd = between(room.left, room.end, across);
  const Point startLeft = between(room.start, room.left, along);
  const Point rightEnd = between(room.right, room.end, along);
  const Point middle = between(startRight, leftEnd, along);
  const double towardsLeft = random.between(-0.1, 0.3);
  const double towardsRight = random.between(-0.1, 0.3);
  wind(random,
       {room.start, between(startLeft, room.left, towardsLeft), middle, between(startRight, room.right, towardsRight)},
       depth - 1, line);
  line.push_back(middle);
  wind(random, {middle, between(leftEnd, room.end, towardsLeft), room.end, between(rightEnd, room.right, towardsRight)},
       depth - 1, line);
}

// The corner towards a site, drawn back so far that the line stays a border and does not become a finger.
Point corner(Point start, Point end, Point site, double share) {
  const Point middle = between(start, end, 0.5);
  const double length = std::sqrt(squaredDistance(start, end));
  const Point along{(end.x - start.x) / length, (end.y - start.y) / length};
  const Point towards{site.x - middle.x, site.y - middle.y};
  const double parallel = std::abs(towards.x * along.x + towards.y * along.y);
  const double perpendicular = std::abs(towards.x * along.y - towards.y * along.x);
  if (parallel * share > 0.3 * length) share = 0.3 * length / parallel;
  if (perpendicular * share > 0.5 * length) share = 0.5 * length / perpendicular;
  return between(middle, site, share);
}

int depthFor(double length) {
  constexpr double kStep = 1'500;  // metres between points, about
  return std::clamp(static_cast<int>(std::lround(std::log2(length / kStep))), 0, 5);
}

double centimetres(double metres) { return std::round(metres * 100) / 100; }

}  // namespace

std::vector<Point> meander(Point start, Point end, Point leftSite, Point rightSite, std::uint64_t seed) {
  const bool reversed = std::pair(end.x, end.y) < std::pair(start.x, start.y);
  if (reversed) {
    std::swap(start, end);
    std::swap(leftSite, rightSite);
  }
  std::uint64_t name = seed;
  for (const double coordinate : {start.x, start.y, end.x, end.y}) {
    name = mix(name ^ static_cast<std::uint64_t>(std::llround(coordinate * 100)));
  }
  Random random(name);
  const double share = random.between(0.55, 0.95);
  std::vector<Point> line{start};
  wind(random, {start, corner(start, end, leftSite, share), end, corner(start, end, rightSite, share)},
       depthFor(std::sqrt(squaredDistance(start, end))), line);
  line.push_back(end);
  for (Point& p : line) p = {centimetres(p.x), centimetres(p.y)};
  if (reversed) std::reverse(line.begin(), line.end());
  return line;
}

}  // namespace study

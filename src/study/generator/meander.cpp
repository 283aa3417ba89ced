#include "study/generator/meander.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "study/generator/random.h"

namespace study::generator {

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
  const double length = distance(start, end);
  const Point along{(end.x - start.x) / length, (end.y - start.y) / length};
  const Point towards{site.x - middle.x, site.y - middle.y};
  const double parallel = std::abs(towards.x * along.x + towards.y * along.y);
  const double perpendicular = std::abs(towards.x * along.y - towards.y * along.x);
  if (parallel * share > 0.3 * length) share = 0.3 * length / parallel;
  if (perpendicular * share > 0.5 * length) share = 0.5 * length / perpendicular;
  return between(middle, site, share);
}

}  // namespace

int halvings(double length, double step) {
  constexpr int kMost = 12;
  int count = 0;
  for (double steps = length / step; steps > std::numbers::sqrt2 && count < kMost; steps /= 2) ++count;
  return count;
}

std::vector<Point> meander(EdgeRoom edge, int depth, std::uint64_t seed) {
  const bool reversed = std::pair(edge.end.x, edge.end.y) < std::pair(edge.start.x, edge.start.y);
  if (reversed) edge = {edge.end, edge.start, edge.rightSite, edge.leftSite};
  std::uint64_t name = seed;
  for (const double coordinate : {edge.start.x, edge.start.y, edge.end.x, edge.end.y}) {
    name = mix(name ^ static_cast<std::uint64_t>(std::llround(coordinate * 100)));
  }
  Random random(name);
  const double share = random.between(0.55, 0.95);
  const Point left = corner(edge.start, edge.end, edge.leftSite, share);
  const Point right = corner(edge.start, edge.end, edge.rightSite, share);
  std::vector<Point> line{edge.start};
  wind(random, {edge.start, left, edge.end, right}, depth, line);
  line.push_back(edge.end);
  for (Point& p : line) p = onCentimetres(p);
  if (reversed) std::reverse(line.begin(), line.end());
  return line;
}

}  // namespace study::generator

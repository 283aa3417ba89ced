#include "sample_maps.h"

#include <algorithm>
#include <cmath>

namespace motor::sample {

namespace {

constexpr int kColumns = 4;
constexpr int kRows = 3;
constexpr double kSide = 100;                                     // metres, of a zone
constexpr int kSteps = 40;                                        // of a border between two corners
constexpr int kOrder[] = {7, 2, 10, 4, 0, 11, 5, 8, 3, 9, 1, 6};  // of the zones by value
constexpr const char* kNames[] = {"Ñorga", "Brisa",  "Ávalos", "Pinares", "Tejo",  "Haya",
                                  "Lirio", "Fresno", "Encina", "Olmo",    "Sauce", "Retama"};
const Pen kBorder{1, 2, 0x5A6270};

Point corner(int column, int row) {
  return {kSide * column + 18 * std::sin(5.0 * column + 3.0 * row),
          kSide * row + 14 * std::sin(2.0 * column + 7.0 * row)};
}

// From one corner to the next, ragged across the way; the same points in either direction.
Ring border(Point from, Point to) {
  const double seed = from.x * 0.13 + from.y * 0.29 + to.x * 0.17 + to.y * 0.31;
  const Point way{(to.x - from.x) / kSteps, (to.y - from.y) / kSteps};
  Ring points;
  for (int i = 0; i < kSteps; ++i) {
    const double fade = std::sin(i * 3.14159265358979 / kSteps);
    const double aside = fade * (0.08 * std::sin(seed + i * 0.25) + 0.015 * std::sin(seed * 3 + i * 1.1)) * kSteps;
    points.push_back({from.x + way.x * i - way.y * aside, from.y + way.y * i + way.x * aside});
  }
  return points;
}

void appendBorder(Ring& ring, Point from, Point to, bool backwards) {
  Ring points = backwards ? border(to, from) : border(from, to);
  if (backwards) {
    points.push_back(from);
    std::reverse(points.begin(), points.end());
    points.pop_back();
  }
  ring.insert(ring.end(), points.begin(), points.end());
}

Ring block(int column, int row, int columns, int rows) {
  Ring ring;
  for (int i = 0; i < columns; ++i) appendBorder(ring, corner(column + i, row), corner(column + i + 1, row), false);
  for (int i = 0; i < rows; ++i) {
    appendBorder(ring, corner(column + columns, row + i), corner(column + columns, row + i + 1), false);
  }
  for (int i = columns; i > 0; --i) {
    appendBorder(ring, corner(column + i, row + rows), corner(column + i - 1, row + rows), true);
  }
  for (int i = rows; i > 0; --i) appendBorder(ring, corner(column, row + i), corner(column, row + i - 1), true);
  ring.push_back(ring.front());
  return ring;
}

}  // namespace

Layer zones() {
  std::vector<ObjectPtr> rows;
  for (const int place : kOrder) {
    const Ring ring = block(place % kColumns, place / kColumns, 1, 1);
    rows.push_back(small::region({ring}, Brush{2, 0xF3EFE4, kTransparent}, kBorder));
  }
  return small::layer(rows, {std::begin(kNames), std::end(kNames)});
}

Layer outline() {
  return small::layer({small::region({block(0, 0, kColumns, kRows)}, small::kNoBrush, Pen{3, 2, 0x3A4250})});
}

Map map(std::vector<Layer> layers, int pixelWidth, int pixelHeight) {
  Map map = small::map(std::move(layers));
  map.pixelWidth = pixelWidth;
  map.pixelHeight = pixelHeight;
  map.showBox(outline().table->bounds(), 0.03);
  return map;
}

Map themed(const std::string& shade, int pixelWidth, int pixelHeight, const std::string& legend) {
  const Layer base = zones();
  Layer theme = small::theme(base, shade);
  if (!legend.empty()) theme.legend = small::legend("set legend layer 1 " + legend);
  return map({outline(), theme, base}, pixelWidth, pixelHeight);
}

}  // namespace motor::sample

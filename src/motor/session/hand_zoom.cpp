#include "motor/session/hand_zoom.h"

#include <algorithm>
#include <cmath>

#include "motor/session/map_view.h"

namespace motor {
namespace {

// The smallest and largest width in metres: a house, and so many times the entire map (or, where there is nothing on
// the map, more than the whole earth).
constexpr double kSmallestZoom = 50;
constexpr double kMostTimesEntire = 4;
constexpr double kLargestZoom = 1e8;

double zoomWithin(const Map& map, double current, double wanted) {
  const double whole = entireZoom(map);
  const double largest = whole > 0 ? std::max(kSmallestZoom, whole * kMostTimesEntire) : kLargestZoom;
  return std::clamp(wanted, std::min(kSmallestZoom, current), std::max(largest, current));
}

// Moves the map so that a point of it lies under a pixel. With longitude and latitude the scale changes with the
// centre's latitude, so that it takes some steps to get there.
void putUnder(Map& map, Point point, Point pixel) {
  constexpr int kSteps = 5;
  for (int step = 0; step < kSteps; ++step) {
    const Point there = map.toMap(pixel);
    map.centre.x += point.x - there.x;
    map.centre.y += point.y - there.y;
  }
}

Point middleOf(const Box& box) { return {(box.minX + box.maxX) / 2, (box.minY + box.maxY) / 2}; }

// The part of the window's width or height, whichever is larger, that a box of pixels takes.
double shareOf(const Map& map, const Box& pixels) {
  return std::max((pixels.maxX - pixels.minX) / map.pixelWidth, (pixels.maxY - pixels.minY) / map.pixelHeight);
}

}  // namespace

bool zoomAround(Map& map, double factor, Point pixel) {
  const Point fixed = map.toMap(pixel);
  const double zoom = zoomWithin(map, map.zoomMetres, map.zoomMetres * factor);
  if (zoom == map.zoomMetres) return false;
  map.zoomMetres = zoom;
  putUnder(map, fixed, pixel);
  return true;
}

bool zoomTo(Map& map, double factor, Point pixel) {
  const Point centre = map.toMap(pixel);
  const double zoom = zoomWithin(map, map.zoomMetres, map.zoomMetres * factor);
  if (zoom == map.zoomMetres && centre == map.centre) return false;
  map.zoomMetres = zoom;
  map.centre = centre;
  return true;
}

bool zoomIntoBox(Map& map, const Box& pixels) {
  if (pixels.isEmpty() || !(shareOf(map, pixels) > 0)) return false;
  Box shown;
  shown.add(map.toMap({pixels.minX, pixels.minY}));
  shown.add(map.toMap({pixels.maxX, pixels.maxY}));
  const double before = map.zoomMetres;
  map.showBox(shown, 0);
  map.zoomMetres = zoomWithin(map, before, map.zoomMetres);
  return true;
}

bool zoomOutOfBox(Map& map, const Box& pixels) {
  if (pixels.isEmpty() || !(shareOf(map, pixels) > 0)) return false;
  const double before = map.zoomMetres;
  const Point centre = map.centre;
  const double wanted = map.unitsPerPixel() / shareOf(map, pixels);
  // With longitude and latitude the same width on the ground is more units where the map's centre goes.
  constexpr int kSteps = 5;
  for (int step = 0; step < kSteps; ++step) {
    map.zoomMetres *= wanted / map.unitsPerPixel();
    putUnder(map, centre, middleOf(pixels));
  }
  const double zoom = zoomWithin(map, before, map.zoomMetres);
  if (zoom != map.zoomMetres) {
    map.zoomMetres = zoom;
    putUnder(map, centre, middleOf(pixels));
  }
  return true;
}

bool panBy(Map& map, double pixelX, double pixelY) {
  if (pixelX == 0 && pixelY == 0) return false;
  putUnder(map, map.centre, {map.pixelWidth / 2.0 + pixelX, map.pixelHeight / 2.0 + pixelY});
  return true;
}

}  // namespace motor

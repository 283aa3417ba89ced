#pragma once

#include <vector>

#include "motor/map/layer.h"
#include "motor/map/legend_frame.h"

namespace motor {

// A map: its layers from the top down (layer 1 is layers[0]), the cosmetic layer above them, and what part of the world
// it shows. The zoom is the width of the window in metres on the ground; the height follows from the window's shape.
class Map {
 public:
  CoordinateSystem coordinateSystem;
  std::vector<Layer> layers;
  Layer cosmetic;
  std::vector<MapLegendFrame> legendFrames;  // of its cartographic legend, from the top down; none: the themes' legend
  Point centre;                              // in the map's coordinate system
  double zoomMetres = 0;                     // > 0
  int pixelWidth = 640;                      // of the window
  int pixelHeight = 480;

  // Coordinate units per pixel at the current zoom.
  [[nodiscard]] double unitsPerPixel() const;
  // Between the window (pixels from the top left) and the map's coordinates.
  [[nodiscard]] Point toMap(Point pixel) const;
  [[nodiscard]] Point toPixel(Point map) const;
  // What the window shows, in the map's coordinates.
  [[nodiscard]] Box visibleBox() const;

  // Shows a box (in the map's coordinates) whole, with `margin` (0.02: two percent) on each side. An empty box changes
  // nothing.
  void showBox(const Box& box, double margin);
  // The box around the objects of all displayed layers, or of one layer.
  [[nodiscard]] Box fullExtent() const;
  [[nodiscard]] Box extentOf(const Layer& layer) const;
};

// An object found under a point.
struct Hit {
  std::size_t layer = 0;  // index into Map::layers
  RowId row = 0;
};

// Whether a search looks at a layer: it has a table, is selectable and is drawn at the map's zoom.
[[nodiscard]] bool isSearched(const Layer& layer, const Map& map);

// The rows of a layer whose objects lie under a point of the map's coordinates, ascending. Rows that share one object
// count once, as the first of them. Lines and points are hit within `tolerancePixels`.
[[nodiscard]] std::vector<RowId> rowsAt(const Map& map, const Layer& layer, Point p, double tolerancePixels = 3);

// Everything of displayed, selectable layers inside their zoom range under a point of the map's coordinates: topmost
// layer first, by row inside a layer, without the cosmetic layer; a theme (Display::value) and the layer of the same
// table count once, as the upper of them.
[[nodiscard]] std::vector<Hit> objectsAt(const Map& map, Point p, double tolerancePixels = 3);

}  // namespace motor

#pragma once

#include <QPainter>
#include <cstdint>
#include <span>
#include <vector>

#include "motor/drawing/map_view.h"
#include "motor/drawing/object_places.h"
#include "motor/drawing/shape_painter.h"
#include "motor/drawing/sign_stamps.h"
#include "motor/drawing/theme.h"

namespace motor {

// What theme layers know from one picture to the next.
struct ThemeMemory {
  Themes themes;
  ObjectPlaces places;
  SignStamps stamps;

  void dropUnused();
};

// Paints the theme layers of a map and, below them, what they leave to be seen of the layer that they shade.
class ThemePainter {
 public:
  ThemePainter(QPainter& painter, ShapePainter& shapes, const Map& map, const MapView& view, ThemeMemory& memory,
               double devicePixelRatio);

  // Paints map.layers[number], which has a theme and is drawn.
  void paint(std::size_t number);
  // Which objects of map.layers[number] need not be painted, since a theme above paints over them; by object.
  [[nodiscard]] std::vector<bool> coveredObjects(std::size_t number, const ObjectSet& set);
  // How far the theme signs above map.layers[number] reach from an object's centre, by object, in pixels; empty when
  // there are none.
  [[nodiscard]] std::vector<double> signRadii(std::size_t number);

 private:
  void paintClasses(std::size_t number, const ClassTheme& theme);
  void paintSymbols(const Layer& layer, const SymbolTheme& theme);
  void paintCharts(const Layer& layer, const ChartTheme& theme);
  void paintDots(const Layer& layer, const DensityTheme& theme);
  // Visits the pixels of the objects' centres that may be seen, in order.
  template <typename Visit>
  void forCentres(const Layer& layer, std::span<const std::uint32_t> order, double reach, Visit visit);
  // The themes of the layers right above a layer that are drawn.
  [[nodiscard]] std::vector<const Layer*> themesAbove(std::size_t number) const;

  QPainter& painter_;
  ShapePainter& shapes_;
  const Map& map_;
  const MapView& view_;
  ThemeMemory& memory_;
  double devicePixelRatio_;
};

}  // namespace motor

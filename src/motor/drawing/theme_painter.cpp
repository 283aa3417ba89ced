#include "motor/drawing/theme_painter.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/chart_painter.h"
#include "motor/drawing/colours.h"
#include "motor/drawing/pens.h"
#include "motor/map/projected_objects.h"

namespace motor {

namespace {

const Layer& shadedLayer(const Map& map, std::size_t number) {
  while (map.layers[number].theme && number + 1 < map.layers.size()) ++number;
  return map.layers[number];
}

}  // namespace

void ThemeMemory::dropUnused() {
  themes.dropUnused();
  places.dropUnused();
}

ThemePainter::ThemePainter(QPainter& painter, ShapePainter& shapes, const Map& map, const MapView& view,
                           ThemeMemory& memory, double devicePixelRatio)
    : painter_(painter),
      shapes_(shapes),
      map_(map),
      view_(view),
      memory_(memory),
      devicePixelRatio_(devicePixelRatio) {}

void ThemePainter::paint(std::size_t number) {
  const Layer& layer = map_.layers[number];
  const Theme& theme = memory_.themes.of(layer);
  if (const auto* classes = std::get_if<ClassTheme>(&theme)) paintClasses(number, *classes);
  if (const auto* symbols = std::get_if<SymbolTheme>(&theme)) paintSymbols(layer, *symbols);
  if (const auto* charts = std::get_if<ChartTheme>(&theme)) paintCharts(layer, *charts);
  if (const auto* dots = std::get_if<DensityTheme>(&theme)) paintDots(layer, *dots);
}

// A theme draws over the objects of its base layer those that it has a style for.
void ThemePainter::paintClasses(std::size_t number, const ClassTheme& theme) {
  const auto set = projectedObjects(map_.layers[number].table, map_.coordinateSystem);
  const Layer& base = shadedLayer(map_, number);
  const std::vector<bool> covered = coveredObjects(number, *set);
  for (const std::uint32_t index : set->objectsIn(reachOf(view_))) {
    const ThemeClass* itsClass = theme.of(index);
    if (itsClass == nullptr || covered[index]) continue;
    const ObjectPtr& object = set->objects()[index];
    shapes_.paint(object, theme.shaded(*itsClass, *object, styleIn(base, *object)));
  }
  shapes_.finishLayer();
}

template <typename Visit>
void ThemePainter::forCentres(const Layer& layer, std::span<const std::uint32_t> order, double reach, Visit visit) {
  const auto set = projectedObjects(layer.table, map_.coordinateSystem);
  const std::vector<Point>& centres = memory_.places.centres(set);
  const QRectF seen = view_.rect().adjusted(-reach, -reach, reach, reach);
  for (const std::uint32_t index : order) {
    const QPointF at = view_.toPixel(centres[index]);
    if (seen.contains(at)) visit(index, at);
  }
}

// The largest first, so that the small ones stay on top.
void ThemePainter::paintSymbols(const Layer& layer, const SymbolTheme& theme) {
  painter_.save();
  forCentres(layer, theme.order(), theme.largestPoints() * kPixelsPerPoint, [&](std::uint32_t index, QPointF at) {
    const double value = theme.values()[index];
    if (const Symbol* symbol = theme.symbolOf(value))
      memory_.stamps.paint(painter_, *symbol, theme.pointsOf(value), at, devicePixelRatio_);
  });
  painter_.restore();
}

void ThemePainter::paintCharts(const Layer& layer, const ChartTheme& theme) {
  const double diagonal = std::hypot(view_.rect().width(), view_.rect().height());
  forCentres(layer, theme.order(), theme.reach(), [&](std::uint32_t index, QPointF at) {
    paintChart(painter_, theme, theme.valuesOf(index), at, diagonal, devicePixelRatio_);
  });
}

void ThemePainter::paintDots(const Layer& layer, const DensityTheme& theme) {
  const auto set = projectedObjects(layer.table, map_.coordinateSystem);
  const auto& dots = memory_.places.dots(set, theme.dots());
  QPolygonF seen;
  for (const std::uint32_t index : set->objectsIn(reachOf(view_))) {
    for (const Point& dot : dots[index]) seen.append(view_.toPixel(dot));
  }
  painter_.save();
  const Qt::PenCapStyle cap = theme.isSquare() ? Qt::SquareCap : Qt::RoundCap;
  painter_.setPen(QPen(toQColor(theme.colour()), theme.width(), Qt::SolidLine, cap));
  painter_.drawPoints(seen);
  painter_.restore();
}

std::vector<const Layer*> ThemePainter::themesAbove(std::size_t number) const {
  std::vector<const Layer*> themes;
  while (number > 0 && map_.layers[number - 1].theme) {
    --number;
    const Layer& layer = map_.layers[number];
    if (layer.table && layer.isDrawnAt(map_.zoomMetres)) themes.push_back(&layer);
  }
  return themes;
}

std::vector<bool> ThemePainter::coveredObjects(std::size_t number, const ObjectSet& set) {
  std::vector<bool> covered(set.objects().size(), false);
  for (const Layer* layer : themesAbove(number)) {
    const auto* theme = std::get_if<ClassTheme>(&memory_.themes.of(*layer));
    if (theme == nullptr) continue;
    for (std::uint32_t i = 0; i < covered.size(); ++i) {
      if (!covered[i]) covered[i] = theme->covers(i, *set.objects()[i]);
    }
  }
  return covered;
}

std::vector<double> ThemePainter::signRadii(std::size_t number) {
  std::vector<double> radii;
  const auto grow = [&](std::uint32_t index, double radius) {
    if (radii.size() <= index) radii.resize(index + 1, 0);
    radii[index] = std::max(radii[index], radius);
  };
  for (const Layer* layer : themesAbove(number)) {
    const Theme& theme = memory_.themes.of(*layer);
    if (const auto* symbols = std::get_if<SymbolTheme>(&theme)) {
      for (const std::uint32_t index : symbols->order())
        grow(index, symbols->pointsOf(symbols->values()[index]) * kPixelsPerPoint / 2);
    }
    if (const auto* charts = std::get_if<ChartTheme>(&theme)) {
      for (const std::uint32_t index : charts->order())
        grow(index, charts->sizeOf(charts->amountOf(charts->valuesOf(index))) / 2);
    }
  }
  return radii;
}

}  // namespace motor

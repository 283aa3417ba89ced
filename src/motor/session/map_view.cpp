#include "motor/session/map_view.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "motor/language/error.h"
#include "text/utf8.h"

namespace motor {
namespace {

constexpr double kEntireMargin = 0.02;
constexpr double kMostPixels = 30000;
constexpr double kSameView = 0.005;  // of the map's width: by so much two views may differ and count as one

// What showEntire would show; empty without objects.
std::optional<Map> entire(const Map& map) {
  const Box extent = map.fullExtent();
  if (extent.isEmpty()) return std::nullopt;
  Map whole;
  whole.coordinateSystem = map.coordinateSystem;
  whole.pixelWidth = map.pixelWidth;
  whole.pixelHeight = map.pixelHeight;
  whole.showBox(extent, kEntireMargin);
  return whole;
}

struct PaperUnit {
  const char* name;
  double perInch;
};

constexpr std::array<PaperUnit, 6> kPaperUnits{
    {{"in", 1}, {"cm", 2.54}, {"mm", 25.4}, {"pt", 72}, {"pica", 6}, {"twips", 1440}}};

}  // namespace

void showEntire(Map& map) { map.showBox(map.fullExtent(), kEntireMargin); }

void showEntire(Map& map, const Layer& layer) { map.showBox(map.extentOf(layer), kEntireMargin); }

bool isShownEntire(const Map& map) {
  const std::optional<Map> whole = entire(map);
  if (!whole) return false;
  const double apart = kSameView * map.pixelWidth * whole->unitsPerPixel();
  return std::abs(map.zoomMetres - whole->zoomMetres) <= kSameView * whole->zoomMetres &&
         std::abs(map.centre.x - whole->centre.x) <= apart && std::abs(map.centre.y - whole->centre.y) <= apart;
}

double entireZoom(const Map& map) {
  const std::optional<Map> whole = entire(map);
  return whole ? whole->zoomMetres : 0;
}

double paperUnitsPerInch(const std::string& unit) {
  const auto found = std::find_if(kPaperUnits.begin(), kPaperUnits.end(),
                                  [&](const PaperUnit& u) { return text::equalsIgnoringCase(u.name, unit); });
  if (found == kPaperUnits.end()) throw EngineError("«" + unit + "» no es una unidad de papel");
  return found->perInch;
}

int paperPixels(double length, const std::string& unit) {
  const double pixels = length / paperUnitsPerInch(unit) * kPixelsPerInch;
  if (std::isnan(pixels)) throw EngineError("la medida no es un número");
  return static_cast<int>(std::lround(std::clamp(pixels, -kMostPixels, kMostPixels)));
}

}  // namespace motor

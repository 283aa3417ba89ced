#include <algorithm>

#include "study/model/indicators.h"
#include "study/reports/map_picture.h"
#include "study/reports/sections.h"
#include "study/thematic/thematic_map.h"

namespace study::reports {

namespace {

// What the program's own map of the indicator shows, in the same classes.
MapPicture pictureOf(const ReportData& data, UnitKind units, const SexChoice& sex) {
  const std::string indicator(kStandardisedRateIndicator);
  MapPicture picture;
  picture.study = &data.study();
  picture.units = units;
  picture.limits = data.scales().limits({data.yearIndex(), sex.name, kWholeRegion, units, indicator});
  for (const Unit unit : data.study().units(units)) {
    const Figure* figure = data.book().find(data.yearIndex(), unit, sex.name, indicator);
    picture.values.push_back(figure ? std::optional(figure->value) : std::nullopt);
  }
  return picture;
}

std::string caption(const ReportData& data, std::string_view units, std::string_view sex) {
  return "Tasa estandarizada de mortalidad por 100.000 habitantes, por " + std::string(units) + ". " +
         std::string(sex) + ", " + data.year();
}

constexpr double kMapHeight = 330;
constexpr double kPairHeight = 200;
constexpr std::size_t kMostInPairs = 500;  // units of a small map

void addMap(Flow& flow, const MapPicture& map, const std::string& caption, double most,
            const std::vector<std::string>& notes) {
  constexpr double kLegendRoom = 32;
  const double height = std::min(mapHeight(map, kContentWidth), most) + kLegendRoom;
  const QRectF box = flow.figure("Mapa", caption, height);
  const double used = paintMapLegend(flow.page(), box.topLeft(), box.width(), map);
  paintMap(flow.page(), box.adjusted(0, used + 2, 0, 0), map);
  flow.source(notes);
}

// Men and women side by side.
void addPair(Flow& flow, const ReportData& data, UnitKind units, const std::string& caption) {
  constexpr double kGap = 16;
  constexpr TextStyle kSexName{8, true, kText};
  const QRectF box = flow.figure("Mapa", caption, kPairHeight);
  const double width = (box.width() - kGap) / 2;
  double left = box.left();
  for (const SexChoice& sex : {kMenOnly, kWomenOnly}) {
    flow.page().text({left + width / 2, box.top() + 9}, sex.name, kSexName, Align::centre);
    MapPicture picture = pictureOf(data, units, sex);
    picture.hasScale = false;
    paintMap(flow.page(), {left, box.top() + 14, width, box.height() - 14}, picture);
    left += width + kGap;
  }
  flow.source({"Colores: los del mapa anterior; gris: sin datos."});
}

}  // namespace

void addMaps(Flow& flow, const ReportData& data) {
  flow.section("Mapas");
  if (data.study().provinceAreas.empty()) {
    flow.paragraphs("El estudio no tiene mapa.");
    return;
  }
  MapPicture provinces = pictureOf(data, UnitKind::province, kBoth);
  provinces.hasNames = true;
  addMap(flow, provinces, caption(data, "provincias", "Ambos sexos"), kMapHeight, {});
  addPair(flow, data, UnitKind::province, caption(data, "provincias", "Hombres y mujeres"));

  flow.newPage();
  const bool hasPair = data.study().zones.size() <= kMostInPairs;
  constexpr double kTextRoom = 110;  // captions, legend, notes and source
  const double most = hasPair ? kMapHeight + 40 : flow.room() - kTextRoom;
  addMap(flow, pictureOf(data, UnitKind::zone, kBoth), caption(data, "zonas básicas de salud", "Ambos sexos"), most,
         {"Línea oscura: límite de provincia. Las tasas de zonas con menos de " + std::to_string(kStableDeaths) +
          " defunciones varían mucho por azar."});
  if (hasPair) addPair(flow, data, UnitKind::zone, caption(data, "zonas básicas de salud", "Hombres y mujeres"));
}

}  // namespace study::reports

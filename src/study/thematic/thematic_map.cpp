#include "study/thematic/thematic_map.h"

#include "study/model/indicators.h"

namespace study {

namespace {

constexpr std::string_view kByProvince = "Provincias";
constexpr std::string_view kByZone = "Zonas básicas";
constexpr std::string_view kBase = "Base";

void addFrame(std::vector<ThematicMap>& maps, std::size_t year, Unit frame, UnitKind units) {
  for (const SexChoice& sex : kSexChoices) {
    for (std::size_t i = 0; i < kThematicIndicators; ++i) {
      maps.push_back({year, sex.name, frame, units, thematicIndicator(i)});
    }
  }
}

}  // namespace

std::vector<ThematicMap> thematicMaps(const Study& study) {
  std::vector<ThematicMap> maps;
  for (std::size_t year = 0; year < study.years.size(); ++year) {
    addFrame(maps, year, {}, UnitKind::province);
    addFrame(maps, year, {}, UnitKind::zone);
    for (const Unit province : study.units(UnitKind::province)) addFrame(maps, year, province, UnitKind::zone);
  }
  return maps;
}

std::filesystem::path thematicPath(const Study& study, const ThematicMap& map) {
  std::filesystem::path path = "Tematicos";
  path /= std::to_string(study.years[map.year]);
  path /= map.sex;
  path /= study.name(map.frame);
  if (map.frame.kind == UnitKind::region) path /= map.units == UnitKind::province ? kByProvince : kByZone;
  return path / map.indicator;
}

std::filesystem::path basePath(const Study& study, const ThematicMap& map) {
  const std::filesystem::path base(kBase);
  if (map.units == UnitKind::province) return base / "Provincias";
  if (map.frame.kind == UnitKind::region) return base / "ZonasBasicas";
  return base / "Zonas" / study.name(map.frame);
}

std::vector<Unit> unitsOf(const Study& study, const ThematicMap& map) {
  if (map.units == UnitKind::province) return study.units(UnitKind::province);
  std::vector<Unit> zones;
  for (const std::size_t zone : study.zonesOf(map.frame)) zones.push_back({UnitKind::zone, zone});
  return zones;
}

}  // namespace study

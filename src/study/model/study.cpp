#include "study/model/study.h"

namespace study {

namespace {

std::vector<Unit> unitsUpTo(UnitKind kind, std::size_t count) {
  std::vector<Unit> units;
  units.reserve(count);
  for (std::size_t index = 0; index < count; ++index) units.push_back({kind, index});
  return units;
}

}  // namespace

std::vector<Unit> Study::units(UnitKind kind) const {
  switch (kind) {
    case UnitKind::region:
      return unitsUpTo(kind, 1);
    case UnitKind::province:
      return unitsUpTo(kind, provinces.size());
    case UnitKind::zone:
      break;
  }
  return unitsUpTo(UnitKind::zone, zones.size());
}

const std::string& Study::name(Unit unit) const {
  static const std::string region(kRegion);
  switch (unit.kind) {
    case UnitKind::region:
      return region;
    case UnitKind::province:
      return provinces[unit.index];
    case UnitKind::zone:
      break;
  }
  return zones[unit.index].name;
}

const Area& Study::area(Unit unit) const {
  switch (unit.kind) {
    case UnitKind::region:
      return regionArea;
    case UnitKind::province:
      return provinceAreas[unit.index];
    case UnitKind::zone:
      break;
  }
  return zoneAreas[unit.index];
}

std::vector<std::size_t> Study::zonesOf(Unit unit) const {
  if (unit.kind == UnitKind::zone) return {unit.index};
  std::vector<std::size_t> found;
  for (std::size_t zone = 0; zone < zones.size(); ++zone) {
    if (unit.kind == UnitKind::region || zones[zone].province == unit.index) found.push_back(zone);
  }
  return found;
}

Counts Study::countsOf(std::size_t year, Unit unit) const {
  Counts sum(ages.size(), causes.codes.size());
  for (const std::size_t zone : zonesOf(unit)) sum += counts[year][zone];
  return sum;
}

}  // namespace study

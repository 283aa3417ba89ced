#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "study/model/age_group.h"
#include "study/model/area.h"
#include "study/model/causes.h"
#include "study/model/counts.h"
#include "study/model/document_texts.h"

namespace study {

// The program's own: the region that it names, and the years that it has tabs for.
inline constexpr std::string_view kRegion = "Veldoria";
inline constexpr std::array<int, 4> kProgramYears{1999, 2000, 2001, 2002};

// A basic health zone.
struct Zone {
  std::string name;
  std::size_t province = 0;
};

// The age structure to which rates are standardised.
struct StandardPopulation {
  std::string name;             // as documents call it
  std::vector<double> weights;  // by age group, of any sum
};

// A unit that figures are published of.
enum class UnitKind { region, province, zone };
struct Unit {
  UnitKind kind = UnitKind::region;
  std::size_t index = 0;  // of the study's provinces or zones; 0 for the region

  bool operator==(const Unit&) const = default;
};

// Everything that a study is made from: the region's division and what was counted in it. Years ascend; provinces stand
// in the order of their names, zones in that of their provinces' and their own. Areas are in metres of the map's
// projection; neighbours share their borders point for point.
struct Study {
  std::vector<int> years;
  std::vector<AgeGroup> ages;
  StandardPopulation standard;
  CauseList causes;
  std::vector<std::string> provinces;
  std::vector<Zone> zones;
  std::vector<std::vector<Counts>> counts;  // by year, by zone

  int utmZone = 30;  // of the map's projection, negative in the south
  std::vector<Area> zoneAreas;
  std::vector<Area> provinceAreas;
  Area regionArea;

  int suppressBelow = 0;  // deaths fewer than this, but not none, are not published; 0: all are
  DocumentTexts texts;

  [[nodiscard]] std::vector<Unit> units(UnitKind kind) const;
  [[nodiscard]] const std::string& name(Unit unit) const;
  [[nodiscard]] const Area& area(Unit unit) const;
  // The zones of a province, ascending; all zones of the region; a zone itself.
  [[nodiscard]] std::vector<std::size_t> zonesOf(Unit unit) const;
  // Persons and deaths of a unit, its zones summed; `year` is an index of `years`.
  [[nodiscard]] Counts countsOf(std::size_t year, Unit unit) const;
};

}  // namespace study

#include <algorithm>

#include "study/reports/phrases.h"
#include "study/reports/sections.h"

namespace study::reports {

namespace {

pages::Row zoneRow(const ReportData& data, Unit unit, pages::RowKind kind, const std::string& name) {
  return {kind,
          name,
          {data.personsCell({unit}), data.deathsCell({unit}), data.crudeCell({unit}), data.standardisedCell({unit}),
           data.limitsCell({unit}), data.lifeLostCell({unit})}};
}

pages::Sheet emptySheet(const std::string& caption) {
  return {caption,
          "Zona básica de salud",
          {{"", "Población"},
           {"", "Defunciones"},
           {"", "Tasa bruta"},
           {"", "Tasa estandarizada"},
           {"", "IC 95 %"},
           {"", "AVPP"}},
          {}};
}

void addTable(Flow& flow, const ReportData& data, const pages::Sheet& sheet) {
  std::vector<std::string> notes = tableNotes(sheet, data.study());
  notes.emplace_back(
      "Ambos sexos. Tasas por 100.000 habitantes. IC 95 %: límites de confianza de la tasa estandarizada.");
  flow.table(sheet, notes);
}

void addAll(Flow& flow, const ReportData& data) {
  const Study& study = data.study();
  pages::Sheet sheet = emptySheet("Indicadores por provincia y zona básica de salud. " + data.year());
  for (const Unit province : study.units(UnitKind::province)) {
    sheet.rows.push_back(zoneRow(data, province, pages::RowKind::group, study.name(province)));
    for (const std::size_t zone : study.zonesOf(province)) {
      sheet.rows.push_back(zoneRow(data, {UnitKind::zone, zone}, pages::RowKind::figures, study.zones[zone].name));
    }
  }
  addTable(flow, data, sheet);
}

struct RatedZone {
  std::size_t zone = 0;
  double rate = 0;
  bool isUnstable = false;
};

// Stable rates before unstable ones, then the highest first, or the lowest.
std::vector<RatedZone> extremes(std::vector<RatedZone> zones, bool areHighest) {
  std::stable_sort(zones.begin(), zones.end(), [&](const RatedZone& a, const RatedZone& b) {
    if (a.isUnstable != b.isUnstable) return b.isUnstable;
    return areHighest ? a.rate > b.rate : a.rate < b.rate;
  });
  zones.resize(std::min(zones.size(), kExtremeZones));
  return zones;
}

void addExtremes(Flow& flow, const ReportData& data) {
  const Study& study = data.study();
  std::vector<RatedZone> zones;
  for (const Unit zone : study.units(UnitKind::zone)) {
    const std::optional<Rate> rate = data.standardised({zone});
    if (rate) zones.push_back({zone.index, rate->rate, data.isUnstable({zone})});
  }
  flow.paragraphs("La región tiene " + whole(static_cast<long>(study.zones.size())) +
                  " zonas básicas de salud. Las tablas recogen las de tasas estandarizadas más altas y más bajas, sin "
                  "contar las de tasa inestable; la aplicación muestra las cifras de todas.");
  for (const bool areHighest : {true, false}) {
    pages::Sheet sheet = emptySheet(std::string("Zonas básicas con las tasas estandarizadas más ") +
                                    (areHighest ? "altas" : "bajas") + ". " + data.year());
    for (const RatedZone& each : extremes(zones, areHighest)) {
      const Zone& zone = study.zones[each.zone];
      sheet.rows.push_back(zoneRow(data, {UnitKind::zone, each.zone}, pages::RowKind::figures,
                                   zone.name + " (" + study.provinces[zone.province] + ")"));
    }
    addTable(flow, data, sheet);
  }
}

}  // namespace

void addZones(Flow& flow, const ReportData& data) {
  flow.section("Zonas básicas de salud");
  if (data.study().zones.size() > kMostZones) {
    addExtremes(flow, data);
  } else {
    addAll(flow, data);
  }
}

}  // namespace study::reports

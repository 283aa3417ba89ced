#include "study/year_tables.h"

#include <utility>
#include <vector>

#include "study/figures.h"
#include "study/palette.h"
#include "study/table_writer.h"

namespace study {

namespace {

constexpr int kNameWidth = 60;

// Province outlines have no fill: the zones below them are to be seen.
const ObjectStyle kProvinceStyle{palette::kProvinceLine, 2, std::nullopt};
const ObjectStyle kZoneStyle{palette::kZoneLine, 1, palette::kZoneFill};

std::vector<Column> columns(bool withProvince) {
  using enum Column::Type;
  std::vector<Column> result{{"Año", integer}, {"Nombre", text, kNameWidth}};
  if (withProvince) result.push_back({"Provincia", text, kNameWidth});
  result.insert(result.end(), {{"Sexo", text, 12}, {"Tipo", text, 40}, {"Indicador", text, 120}, {"Valor", number}});
  return result;
}

// All rows of one unit; `names` are its name and, for a zone, its province's.
void addUnit(TableWriter& table, int year, const std::vector<std::string>& names, const Counts& counts,
             const TableObject& object) {
  for (const Figure& figure : figures(counts)) {
    std::vector<Field> row{year};
    row.insert(row.end(), names.begin(), names.end());
    row.insert(row.end(), {std::string(figure.sex), std::string(figure.type), figure.indicator, figure.value});
    table.add(row, object);
  }
}

void writeProvinces(const Study& study, int year, const std::filesystem::path& folder) {
  TableWriter table(folder, "Provincias" + std::to_string(year), columns(false));
  for (std::size_t i = 0; i < study.provinces.size(); ++i) {
    const int province = static_cast<int>(i);
    addUnit(table, year, {study.provinces[i]}, study.provinceCounts(year, province),
            {study.provinceOutline(province), kProvinceStyle});
  }
  table.close();
}

void writeZones(const Study& study, int year, const std::filesystem::path& folder) {
  TableWriter table(folder, "ZonasBasicas" + std::to_string(year), columns(true));
  for (std::size_t i = 0; i < study.zones.size(); ++i) {
    const Zone& zone = study.zones[i];
    addUnit(table, year, {zone.name, study.provinces[static_cast<std::size_t>(zone.province)]},
            study.zoneCounts(year, i), {study.zoneOutline(i), kZoneStyle});
  }
  table.close();
}

void writeRegion(const Study& study, int year, const std::filesystem::path& folder) {
  TableWriter table(folder, std::string(kRegion) + std::to_string(year), columns(false));
  addUnit(table, year, {std::string(kRegion)}, study.regionCounts(year), {study.regionOutline(), kProvinceStyle});
  table.close();
}

}  // namespace

void writeYearTables(const Study& study, int year, const std::filesystem::path& folder) {
  writeProvinces(study, year, folder);
  writeZones(study, year, folder);
  writeRegion(study, year, folder);
}

}  // namespace study

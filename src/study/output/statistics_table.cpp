#include "study/output/statistics_table.h"

#include <algorithm>
#include <string>
#include <vector>

#include "study/output/palette.h"
#include "study/output/statistics.h"
#include "study/output/table_writer.h"

namespace study {

Area surroundings(const Area& region) {
  constexpr double kMargin = 0.06;  // of the region's size, on each side
  Area rings = region;
  const Extent box = extent(rings);
  const double margin = kMargin * std::max(box.width(), box.height());
  for (Ring& ring : rings) std::reverse(ring.begin(), ring.end());
  rings.insert(rings.begin(), Ring{{box.minX - margin, box.minY - margin},
                                   {box.maxX + margin, box.minY - margin},
                                   {box.maxX + margin, box.maxY + margin},
                                   {box.minX - margin, box.maxY + margin}});
  return rings;
}

void writeStatisticsTable(const Study& study, const std::filesystem::path& folder) {
  using enum Column::Type;
  TableWriter table(folder, "Estadisticas",
                    {{"Nombre", text, 60}, {"Tipo", text, 40}, {"Indicador", text, 80}, {"Valor", number}},
                    mapProjection(study));
  const std::vector<HiddenDeaths> hidden = hiddenDeaths(study);
  const auto addUnit = [&](Unit unit, const TableObject& object) {
    for (const Statistic& line : statistics(study, hidden, unit)) {
      table.add({study.name(unit), std::string(line.group), line.label, line.value}, object);
    }
  };
  addUnit({}, {surroundings(study.regionArea), {std::nullopt, 1, palette::kSurroundings}});
  for (const Unit province : study.units(UnitKind::province)) {
    const int fill = palette::kProvinces[province.index % palette::kProvinces.size()];
    addUnit(province, {study.area(province), {palette::kPaper, 2, fill}});
  }
  table.close();
}

}  // namespace study

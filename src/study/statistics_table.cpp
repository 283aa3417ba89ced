#include "study/statistics_table.h"

#include <algorithm>
#include <string>

#include "study/palette.h"
#include "study/statistics.h"
#include "study/table_writer.h"

namespace study {

namespace {

void addUnit(TableWriter& table, const std::string& name, const std::vector<Statistic>& lines,
             const TableObject& object) {
  for (const Statistic& line : lines) table.add({name, std::string(line.group), line.label, line.value}, object);
}

}  // namespace

std::vector<Ring> surroundings(const Study& study) {
  constexpr double kMargin = 150'000;
  std::vector<Ring> rings = study.regionOutline();
  const Extent box = extent(rings);
  for (Ring& ring : rings) std::reverse(ring.begin(), ring.end());
  rings.insert(rings.begin(), Ring{{box.minX - kMargin, box.minY - kMargin},
                                   {box.maxX + kMargin, box.minY - kMargin},
                                   {box.maxX + kMargin, box.maxY + kMargin},
                                   {box.minX - kMargin, box.maxY + kMargin}});
  return rings;
}

void writeStatisticsTable(const Study& study, const std::filesystem::path& folder) {
  using enum Column::Type;
  TableWriter table(folder, "Estadisticas",
                    {{"Nombre", text, 60}, {"Tipo", text, 40}, {"Indicador", text, 80}, {"Valor", number}});
  addUnit(table, std::string(kRegion), regionStatistics(study),
          {surroundings(study), {std::nullopt, 1, palette::kSurroundings}});
  for (std::size_t i = 0; i < study.provinces.size(); ++i) {
    const int province = static_cast<int>(i);
    addUnit(
        table, study.provinces[i], provinceStatistics(study, province),
        {study.provinceOutline(province), {palette::kPaper, 2, palette::kProvinces[i % palette::kProvinces.size()]}});
  }
  table.close();
}

}  // namespace study

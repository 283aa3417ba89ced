#include "study/output/year_tables.h"

#include <string>
#include <vector>

#include "study/output/column_widths.h"
#include "study/output/palette.h"
#include "study/output/table_writer.h"

namespace study {

namespace {

// What differs between the three tables.
struct YearTable {
  UnitKind kind;
  std::string_view name;
  ObjectStyle style;
};

// Province outlines have no fill: the zones below them are to be seen.
const std::vector<YearTable>& yearTables() {
  static const ObjectStyle outline{palette::kProvinceLine, 2, std::nullopt};
  static const std::vector<YearTable> tables{
      {UnitKind::province, "Provincias", outline},
      {UnitKind::zone, "ZonasBasicas", {palette::kZoneLine, 1, palette::kZoneFill}},
      {UnitKind::region, kRegion, outline}};
  return tables;
}

std::vector<Column> columns(const Study& study, bool withProvince) {
  using enum Column::Type;
  std::vector<Column> result{{"Año", integer}, {"Nombre", text, nameWidth(study)}};
  if (withProvince) result.push_back({"Provincia", text, nameWidth(study)});
  result.insert(result.end(), {{"Sexo", text, sexWidth()},
                               {"Tipo", text, typeWidth()},
                               {"Indicador", text, indicatorWidth(study)},
                               {"Valor", number}});
  return result;
}

void addUnit(TableWriter& table, const Study& study, const std::vector<Figure>& figures, int year, Unit unit,
             const ObjectStyle& style) {
  const TableObject object(study.area(unit), style);
  std::vector<Field> row{year, study.name(unit)};
  if (unit.kind == UnitKind::zone) row.emplace_back(study.provinces[study.zones[unit.index].province]);
  const std::size_t names = row.size();
  for (const Figure& figure : figures) {
    row.resize(names);
    row.insert(row.end(), {std::string(figure.sex()), std::string(figure.type()), figure.indicator(), figure.value});
    table.add(row, object);
  }
}

}  // namespace

void writeYearTables(const Study& study, const FigureBook& book, std::size_t year,
                     const std::filesystem::path& folder) {
  const MapProjection projection = mapProjection(study);
  const int number = study.years[year];
  for (const YearTable& kind : yearTables()) {
    TableWriter table(folder, std::string(kind.name) + std::to_string(number),
                      columns(study, kind.kind == UnitKind::zone), projection);
    for (const Unit unit : study.units(kind.kind)) {
      addUnit(table, study, book.of(year, unit), number, unit, kind.style);
    }
    table.close();
  }
}

}  // namespace study

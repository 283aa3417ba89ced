#include "study/methods/life_lost.h"
#include "study/pages/table_page.h"
#include "study/pages/table_pages.h"
#include "study/pages/table_parts.h"

namespace study::pages {

namespace {

Cell yearsCell(const YearFigures& figures, Unit unit, const SexChoice& sex, const CauseRow& cause) {
  if (figures.isLifeLostHidden(unit, sex, cause)) return hiddenCell();
  return decimalCell(yearsOfLifeLost(figures.deaths(unit, sex, cause), figures.study().ages));
}

Cell yearsRateCell(const YearFigures& figures, Unit unit, const SexChoice& sex, const CauseRow& cause) {
  if (figures.isLifeLostHidden(unit, sex, cause)) return hiddenCell();
  const std::vector<AgeGroup>& ages = figures.study().ages;
  const ByAge deaths = figures.deaths(unit, sex, cause);
  return rateCell(yearsOfLifeLostRate(deaths, figures.counts(unit).persons(sex), ages), earlyDeaths(deaths, ages));
}

using CellOf = Cell (*)(const YearFigures&, Unit, const SexChoice&, const CauseRow&);

Sheet sheet(const YearFigures& figures, std::string_view list, const SexChoice& sex, std::string caption,
            CellOf cellOf) {
  const std::vector<Unit> units = regionAndProvinces(figures.study());
  Sheet sheet{std::move(caption), "Causa", {}, {}};
  for (const Unit unit : units) sheet.columns.push_back({"", figures.study().name(unit)});
  for (const CauseRow& cause : causeRowsAndTotal(figures.study(), list, sex)) {
    Row row = rowOf(cause);
    for (const Unit unit : units) row.cells.push_back(cellOf(figures, unit, sex, cause));
    sheet.rows.push_back(row);
  }
  return sheet;
}

}  // namespace

std::string lifeLostPage(const YearFigures& figures, std::string_view list, const SexChoice& sex) {
  TablePage page;
  page.name = kTableNames[0];
  page.subjects = {figures.year(), std::string(list), std::string(sex.name)};
  page.sheets.push_back(sheet(figures, list, sex, "Años de vida potencialmente perdidos (AVPP)", yearsCell));
  page.sheets.push_back(sheet(figures, list, sex, "Tasas de AVPP por 100.000 personas", yearsRateCell));
  page.unstableNote = "Tasa inestable: menos de 20 defunciones antes de cumplir los 70 años.";
  page.missingNote = "No hay población menor de 70 años de la que calcular la tasa.";
  page.notes = listNotes(figures.study(), list);
  page.notes.insert(page.notes.begin(), std::string(kLifeLostNote));
  return html(page, figures.study());
}

}  // namespace study::pages

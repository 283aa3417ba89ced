#include "study/pages/table_page.h"
#include "study/pages/table_pages.h"
#include "study/pages/table_parts.h"

namespace study::pages {

namespace {

// The deaths of a cause in a unit and their share in all deaths there.
std::vector<Cell> cellsOf(const YearFigures& figures, Unit unit, const SexChoice& sex, const CauseRow& cause) {
  const std::size_t allAges = figures.study().ages.size();
  const CauseRow allCauses;
  if (figures.areDeathsHidden(unit, sex, cause, allAges)) return {hiddenCell(), hiddenCell()};
  const long deaths = total(figures.deaths(unit, sex, cause));
  const Cell count = countCell(deaths);
  if (figures.areDeathsHidden(unit, sex, allCauses, allAges)) return {count, hiddenCell()};
  const long all = total(figures.deaths(unit, sex, allCauses));
  if (all == 0) return {count, missingCell()};
  return {count, decimalCell(100.0 * static_cast<double>(deaths) / static_cast<double>(all))};
}

void addRows(Sheet& sheet, const YearFigures& figures, const std::vector<CauseRow>& causes, const SexChoice& sex) {
  for (const CauseRow& cause : causes) {
    Row row = rowOf(cause);
    for (const Unit unit : regionAndProvinces(figures.study())) {
      const std::vector<Cell> cells = cellsOf(figures, unit, sex, cause);
      row.cells.insert(row.cells.end(), cells.begin(), cells.end());
    }
    sheet.rows.push_back(row);
  }
}

}  // namespace

std::string distributionPage(const YearFigures& figures, const SexChoice& sex) {
  constexpr std::size_t kColumns = 20;  // two of each unit
  const Study& study = figures.study();
  Sheet sheet{"Defunciones y porcentaje sobre el total de cada columna", "Causa", {}, {}, kColumns};
  for (const Unit unit : regionAndProvinces(study)) {
    sheet.columns.push_back({study.name(unit), "Def."});
    sheet.columns.push_back({study.name(unit), "%"});
  }
  TablePage page;
  for (const std::string_view list : {kBroadGroups, kReducedList}) {
    sheet.rows.push_back({RowKind::section, std::string(list), {}});
    addRows(sheet, figures, causeRows(study, list, sex), sex);
    const std::vector<std::string> notes = listNotes(study, list);
    page.notes.insert(page.notes.end(), notes.begin(), notes.end());
  }
  addRows(sheet, figures, {CauseRow{}}, sex);

  page.name = kTableNames[2];
  page.subjects = {figures.year(), std::string(sex.name)};
  page.width = PageWidth::dense;
  page.sheets.push_back(sheet);
  page.missingNote = "Sin defunciones no hay porcentaje.";
  page.notes.insert(page.notes.begin(), "Def.: defunciones.");
  return html(page, study);
}

}  // namespace study::pages

#include "study/methods/life_lost.h"
#include "study/methods/rates.h"
#include "study/pages/table_page.h"
#include "study/pages/table_pages.h"
#include "study/pages/table_parts.h"

namespace study::pages {

namespace {

std::vector<Column> indicatorColumns() {
  constexpr const char* kLimits = "Límites de confianza (95\u00A0%)";
  return {{"", "Población"},     {"", "Fallecidos"},    {"", "Tasa bruta"}, {"", "Tasa estandarizada"},
          {kLimits, "inferior"}, {kLimits, "superior"}, {"", "AVPP"},       {"", "Tasa de AVPP"}};
}

// Deaths, the crude rate, the standardised one and its limits.
std::vector<Cell> deathCells(const YearFigures& figures, Unit unit, const SexChoice& sex) {
  if (figures.areDeathsHidden(unit, sex)) return std::vector<Cell>(5, hiddenCell());
  const ByAge deaths = figures.counts(unit).deaths(sex);
  const ByAge persons = figures.counts(unit).persons(sex);
  const long died = total(deaths);
  const std::optional<Rate> crude = crudeRate(deaths, persons);
  const std::optional<Rate> standardised = standardisedRate(deaths, persons, figures.study().standard);
  if (!crude || !standardised) {
    return {countCell(died), missingCell(), missingCell(), missingCell(), missingCell()};
  }
  return {countCell(died), rateCell(crude->rate, died), rateCell(standardised->rate, died),
          decimalCell(standardised->lower), decimalCell(standardised->upper)};
}

std::vector<Cell> lifeLostCells(const YearFigures& figures, Unit unit, const SexChoice& sex) {
  if (figures.isLifeLostHidden(unit, sex)) return {hiddenCell(), hiddenCell()};
  const std::vector<AgeGroup>& ages = figures.study().ages;
  const ByAge deaths = figures.counts(unit).deaths(sex);
  return {decimalCell(yearsOfLifeLost(deaths, ages)),
          rateCell(yearsOfLifeLostRate(deaths, figures.counts(unit).persons(sex), ages), earlyDeaths(deaths, ages))};
}

Row indicatorRow(const YearFigures& figures, Unit unit, const SexChoice& sex, RowKind kind) {
  Row row{kind, figures.study().name(unit), {countCell(total(figures.counts(unit).persons(sex)))}};
  for (const std::vector<Cell>& cells : {deathCells(figures, unit, sex), lifeLostCells(figures, unit, sex)}) {
    row.cells.insert(row.cells.end(), cells.begin(), cells.end());
  }
  return row;
}

std::string indicatorsPage(const YearFigures& figures, const SexChoice& sex, std::string_view name, Sheet sheet) {
  TablePage page;
  page.name = name;
  page.subjects = {figures.year(), std::string(sex.name)};
  page.width = PageWidth::portrait;
  page.sheets.push_back(std::move(sheet));
  page.unstableNote =
      "Tasa inestable: menos de 20 defunciones (en la tasa de AVPP, menos de 20 antes de cumplir los 70 años).";
  page.missingNote = kNoPersons;
  page.notes = {
      "Tasas por 100.000 personas. La tasa estandarizada lo está por el método directo; población estándar: " +
          figures.study().standard.name +
          ". Sus límites de confianza, del 95 %, son los de Dobson con la aproximación de Byar.",
      std::string(kLifeLostNote)};
  return html(page, figures.study());
}

}  // namespace

std::string provinceIndicatorsPage(const YearFigures& figures, const SexChoice& sex) {
  const Study& study = figures.study();
  Sheet sheet{"Indicadores principales de Veldoria y sus provincias", "Provincia", indicatorColumns(), {}};
  sheet.rows.push_back(indicatorRow(figures, {UnitKind::region, 0}, sex, RowKind::total));
  for (const Unit province : study.units(UnitKind::province)) {
    sheet.rows.push_back(indicatorRow(figures, province, sex, RowKind::figures));
  }
  return indicatorsPage(figures, sex, kTableNames[3], std::move(sheet));
}

std::string zoneIndicatorsPage(const YearFigures& figures, const SexChoice& sex) {
  const Study& study = figures.study();
  Sheet sheet{
      "Indicadores principales de las provincias y sus zonas básicas", "Provincia y zona", indicatorColumns(), {}};
  sheet.rows.push_back(indicatorRow(figures, {UnitKind::region, 0}, sex, RowKind::total));
  for (const Unit province : study.units(UnitKind::province)) {
    sheet.rows.push_back(indicatorRow(figures, province, sex, RowKind::group));
    for (const std::size_t zone : study.zonesOf(province)) {
      sheet.rows.push_back(indicatorRow(figures, {UnitKind::zone, zone}, sex, RowKind::part));
    }
  }
  return indicatorsPage(figures, sex, kTableNames[4], std::move(sheet));
}

}  // namespace study::pages

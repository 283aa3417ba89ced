#include "study/methods/rates.h"
#include "study/pages/table_page.h"
#include "study/pages/table_pages.h"
#include "study/pages/table_parts.h"

namespace study::pages {

namespace {

// Whose deaths a page shows.
struct Subject {
  const YearFigures& figures;
  Unit unit;
  const SexChoice& sex;
};

// A row's deaths by age group and, last, of all ages.
ByAge withTotal(ByAge counts) {
  counts.push_back(total(counts));
  return counts;
}

Row deathsRow(const Subject& of, const CauseRow& cause) {
  Row row = rowOf(cause);
  const ByAge deaths = withTotal(of.figures.deaths(of.unit, of.sex, cause));
  for (std::size_t age = 0; age < deaths.size(); ++age) {
    const bool isHidden = of.figures.areDeathsHidden(of.unit, of.sex, cause, age);
    row.cells.push_back(isHidden ? hiddenCell() : countCell(deaths[age]));
  }
  return row;
}

Row ratesRow(const Subject& of, const CauseRow& cause) {
  Row row = rowOf(cause);
  const ByAge deaths = withTotal(of.figures.deaths(of.unit, of.sex, cause));
  const ByAge persons = withTotal(of.figures.counts(of.unit).persons(of.sex));
  for (std::size_t age = 0; age < deaths.size(); ++age) {
    const bool isHidden = of.figures.areDeathsHidden(of.unit, of.sex, cause, age);
    row.cells.push_back(isHidden ? hiddenCell() : rateCell(ageSpecificRate(deaths[age], persons[age]), deaths[age]));
  }
  return row;
}

Sheet sheet(const Subject& of, std::string_view list, std::string caption,
            Row (*rowOfCause)(const Subject&, const CauseRow&)) {
  constexpr std::size_t kColumns = 20;  // the age groups of the European standard of 1976, and all ages
  Sheet sheet{std::move(caption), "Causa", {}, {}, kColumns};
  for (const AgeGroup& age : of.figures.study().ages) sheet.columns.push_back({"", age.name});
  sheet.columns.push_back({"", "Total"});
  for (const CauseRow& cause : causeRowsAndTotal(of.figures.study(), list, of.sex)) {
    sheet.rows.push_back(rowOfCause(of, cause));
  }
  return sheet;
}

}  // namespace

std::string deathsByAgePage(const YearFigures& figures, Unit unit, std::string_view list, const SexChoice& sex) {
  const Subject subject{figures, unit, sex};
  TablePage page;
  page.name = kTableNames[1];
  page.subjects = {figures.year(), figures.study().name(unit), std::string(list), std::string(sex.name)};
  page.width = PageWidth::dense;
  page.sheets.push_back(sheet(subject, list, "Defunciones por causa y grupo de edad (años cumplidos)", deathsRow));
  page.sheets.push_back(sheet(subject, list, "Tasas específicas por 100.000 personas de cada grupo de edad", ratesRow));
  page.unstableNote = "Tasa inestable: menos de 20 defunciones.";
  page.missingNote = "No hay población de esa edad de la que calcular la tasa.";
  page.notes = listNotes(figures.study(), list);
  page.notes.insert(page.notes.begin(), "La tasa de la columna Total es la tasa bruta: no tiene en cuenta la edad.");
  return html(page, figures.study());
}

}  // namespace study::pages

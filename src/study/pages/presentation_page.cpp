#include <algorithm>
#include <iterator>

#include "study/methods/rates.h"
#include "study/pages/documents.h"
#include "study/pages/prose.h"
#include "study/pages/report_years.h"
#include "study/pages/table_page.h"
#include "study/pages/year_figures.h"
#include "text/spanish_number.h"

namespace study::pages {

namespace {

constexpr Unit kWhole{UnitKind::region, 0};

std::string counted(std::size_t number, std::string_view one, std::string_view several) {
  return text::spanishNumber(static_cast<double>(number), 0) + " " + std::string(number == 1 ? one : several);
}

std::string divisionOf(const Study& study) {
  return counted(study.provinces.size(), "provincia", "provincias") + " y " +
         counted(study.zones.size(), "zona básica de salud", "zonas básicas de salud");
}

// "1999, 2000 y 2001".
std::string enumerated(const std::vector<int>& years) {
  std::string text;
  for (std::size_t i = 0; i < years.size(); ++i) {
    if (i > 0) text += i + 1 == years.size() ? " y " : ", ";
    text += std::to_string(years[i]);
  }
  return text;
}

std::string yearsOf(const Study& study) {
  return (study.years.size() == 1 ? "el año " : "los años ") + enumerated(study.years);
}

Row yearRow(const Study& study, std::size_t year) {
  const YearFigures figures(study, year);
  Row row{RowKind::figures, figures.year(), {}};
  for (const SexChoice& sex : kSexChoices) {
    row.cells.push_back(countCell(total(figures.counts(kWhole).persons(sex))));
  }
  for (const SexChoice& sex : kSexChoices) {
    const long deaths = total(figures.counts(kWhole).deaths(sex));
    row.cells.push_back(figures.areDeathsHidden(kWhole, sex) ? hiddenCell() : countCell(deaths));
  }
  return row;
}

Sheet yearsSheet(const Study& study) {
  Sheet sheet{"Población y defunciones de Veldoria", "Año", {}, {}};
  for (const char* group : {"Población", "Defunciones"}) {
    for (const SexChoice& sex : kSexChoices) sheet.columns.push_back({group, std::string(sex.name)});
  }
  for (std::size_t year = 0; year < study.years.size(); ++year) sheet.rows.push_back(yearRow(study, year));
  return sheet;
}

void describeContents(Prose& prose, const Study& study) {
  prose.heading("Qué contiene");
  prose.list({
      "Tablas: años de vida potencialmente perdidos, defunciones y tasas por edad, distribución de las defunciones e "
      "indicadores principales, por provincias y por zonas básicas.",
      "Mapas: veinte indicadores, por sexo, en toda la región o en una provincia.",
      "Datos: el mapa de cada año, con todos los indicadores de la provincia o zona que se consulte.",
      "Veldoria: las estadísticas de la región y de sus provincias.",
  });
  std::vector<int> reports;
  std::set_intersection(study.years.begin(), study.years.end(), kReportYears.begin(), kReportYears.end(),
                        std::back_inserter(reports));
  if (reports.empty()) return;
  const std::string which = reports.size() == 1 ? "del año " : "de cada uno de los años ";
  prose.paragraph("Hay además un informe en formato PDF " + which + enumerated(reports) +
                  ", en el menú «Estadísticas de mortalidad».");
}

}  // namespace

std::string presentationPage(const Study& study) {
  Prose prose =
      opened(study, study.texts.presentation, "Presentación",
             "Este estudio describe la mortalidad de Veldoria por sexo, grupo de edad y causa de muerte, para el "
             "conjunto de la región, sus provincias y sus zonas básicas de salud. Sus resultados se consultan en "
             "mapas y en tablas, y permiten comparar unos lugares con otros y unos años con otros.");
  prose.heading("El estudio en cifras");
  prose.paragraph("El estudio comprende " + yearsOf(study) + " y divide Veldoria en " + divisionOf(study) + ".");
  const Sheet years = yearsSheet(study);
  prose.table(years);
  if (marksOf(years).contains(Mark::hidden)) {
    prose.paragraph(std::string(kHiddenMark) + ": cifra que no se publica para proteger a las personas.");
  }
  describeContents(prose, study);
  prose.heading("Cómo leer las cifras");
  prose.paragraph(
      "La tasa bruta dice cuántas personas murieron por cada 100.000 habitantes. Para comparar lugares o años conviene "
      "la tasa estandarizada, que descuenta las diferencias de edad de sus poblaciones. Las tasas de lugares con pocas "
      "defunciones cambian mucho por azar de un año a otro: las tablas señalan con un asterisco las que se basan en "
      "menos de 20. Los métodos se explican en el documento «Metodología».");
  return prose.page(study);
}

}  // namespace study::pages

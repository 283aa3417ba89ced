#include "study/reports/charts.h"
#include "study/reports/phrases.h"
#include "study/reports/sections.h"

namespace study::reports {

namespace {

LineChart ratesChart(const ReportData& data) {
  LineChart chart;
  for (const AgeGroup& age : data.study().ages)
    chart.categories.push_back(age.to ? age.name : decimal(age.from, 0) + "+");
  chart.categoryAxis = "Edad (años)";
  for (const auto& [sex, colour] : {std::pair{kMenOnly, kMen}, {kWomenOnly, kWomen}}) {
    LineChart::Line line{{std::string(sex.name), colour}, {}};
    for (std::size_t age = 0; age < data.study().ages.size(); ++age) {
      line.values.push_back(data.rateAt({kWholeRegion, sex}, age));
    }
    chart.lines.push_back(std::move(line));
  }
  chart.axis = needsLogarithms(chart) ? "Defunciones por 100.000 (escala logarítmica)" : "Defunciones por 100.000";
  return chart;
}

pages::Sheet agesSheet(const ReportData& data) {
  pages::Sheet sheet;
  sheet.caption = "Población, defunciones y tasas por sexo y edad. " + std::string(kRegion) + ", " + data.year();
  sheet.rowHeader = "Edad (años)";
  sheet.columns = {{"Población", "Hombres"},
                   {"Población", "Mujeres"},
                   {"Defunciones", "Hombres"},
                   {"Defunciones", "Mujeres"},
                   {"Tasa por 100.000", "Ambos sexos"},
                   {"Tasa por 100.000", "Hombres"},
                   {"Tasa por 100.000", "Mujeres"}};
  const Subject men{kWholeRegion, kMenOnly};
  const Subject women{kWholeRegion, kWomenOnly};
  for (std::size_t age = 0; age < data.study().ages.size(); ++age) {
    sheet.rows.push_back({pages::RowKind::figures,
                          data.study().ages[age].name,
                          {pages::countCell(data.persons(men)[age]), pages::countCell(data.persons(women)[age]),
                           data.deathsCellAt(men, age), data.deathsCellAt(women, age), data.rateCellAt({}, age),
                           data.rateCellAt(men, age), data.rateCellAt(women, age)}});
  }
  sheet.rows.push_back({pages::RowKind::total,
                        "Todas las edades",
                        {data.personsCell(men), data.personsCell(women), data.deathsCell(men), data.deathsCell(women),
                         data.crudeCell({}), data.crudeCell(men), data.crudeCell(women)}});
  return sheet;
}

bool hasRate(const LineChart& chart) {
  for (const LineChart::Line& line : chart.lines) {
    for (const std::optional<double>& value : line.values) {
      if (value.value_or(0) > 0) return true;
    }
  }
  return false;
}

}  // namespace

void addAges(Flow& flow, const ReportData& data) {
  flow.section("Mortalidad por sexo y edad");
  const LineChart chart = ratesChart(data);
  if (hasRate(chart)) {
    const QRectF box = flow.figure(
        "Gráfico", "Tasas específicas de mortalidad por sexo y edad. " + std::string(kRegion) + ", " + data.year(),
        235);
    paintChart(flow.page(), box, chart);
    flow.source();
  } else {
    flow.paragraphs("No hay tasas por edad que mostrar en un gráfico.");
  }
  const pages::Sheet sheet = agesSheet(data);
  flow.table(sheet, tableNotes(sheet, data.study()));
}

}  // namespace study::reports

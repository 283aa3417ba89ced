#include <algorithm>
#include <cmath>

#include "study/reports/phrases.h"
#include "study/reports/sections.h"

namespace study::reports {

namespace {

constexpr std::size_t kMostRows = 45;  // of a chart

// All provinces that have a rate, the highest first.
std::vector<DotRow> dotRows(const ReportData& data) {
  std::vector<std::pair<double, DotRow>> rows;
  for (const Unit province : data.study().units(UnitKind::province)) {
    const std::optional<Rate> rate = data.standardised({province});
    if (!rate) continue;
    const Dot dot{rate->rate, std::pair(rate->lower, rate->upper), data.isUnstable({province})};
    rows.emplace_back(rate->rate, DotRow{data.study().name(province), {dot}});
  }
  std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  std::vector<DotRow> result;
  for (auto& [rate, row] : rows) result.push_back(std::move(row));
  return result;
}

void addChart(Flow& flow, const ReportData& data, std::vector<DotRow> rows) {
  DotChart chart;
  chart.series = {{"Ambos sexos", kBar}};
  chart.axis = "Tasa estandarizada por 100.000";
  if (const std::optional<Rate> rate = data.standardised({})) {
    chart.reference = rate->rate;
    chart.referenceName = std::string(kRegion) + ": " + decimal(rate->rate);
  }
  const double step = rows.size() > 25 ? 13 : 19;
  chart.rows = std::move(rows);
  const QRectF box = flow.figure(
      "Gráfico", "Tasa estandarizada de mortalidad por provincias, con límites del 95 %. Ambos sexos, " + data.year(),
      step * static_cast<double>(chart.rows.size()) + 44);
  paintChart(flow.page(), box, chart);
  flow.source({"Punto hueco: tasa inestable, basada en menos de " + std::to_string(kStableDeaths) + " defunciones."});
}

pages::Row provinceRow(const ReportData& data, Unit unit) {
  pages::Row row{unit.kind == UnitKind::region ? pages::RowKind::total : pages::RowKind::figures,
                 data.study().name(unit),
                 {data.personsCell({unit}), data.deathsCell({unit})}};
  for (const SexChoice& sex : kSexChoices) {
    row.cells.push_back(data.standardisedCell({unit, sex}));
    row.cells.push_back(data.limitsCell({unit, sex}));
  }
  return row;
}

// The provinces, then the region.
std::vector<Unit> provincesAndRegion(const Study& study) {
  std::vector<Unit> units = study.units(UnitKind::province);
  units.push_back(kWholeRegion);
  return units;
}

void addRates(Flow& flow, const ReportData& data) {
  pages::Sheet sheet;
  sheet.caption = "Tasas estandarizadas por provincia y sexo, con límites de confianza. " + data.year();
  sheet.rowHeader = "Provincia";
  sheet.columns = {{"", "Población"}, {"", "Defunciones"}};
  for (const SexChoice& sex : kSexChoices) {
    sheet.columns.push_back({std::string(sex.name), "Tasa"});
    sheet.columns.push_back({std::string(sex.name), "IC 95 %"});
  }
  for (const Unit unit : provincesAndRegion(data.study())) sheet.rows.push_back(provinceRow(data, unit));
  std::vector<std::string> notes = tableNotes(sheet, data.study());
  notes.emplace_back(
      "Tasas por 100.000 habitantes. IC 95 %: límites de confianza del 95 %. Población y defunciones, de ambos sexos.");
  flow.table(sheet, notes);
}

void addIndicators(Flow& flow, const ReportData& data) {
  pages::Sheet sheet;
  sheet.caption =
      "Mortalidad general y años de vida potencialmente perdidos por provincia. Ambos sexos, " + data.year();
  sheet.rowHeader = "Provincia";
  sheet.columns = {
      {"", "Defunciones"}, {"", "Tasa bruta"}, {"", "Tasa estandarizada"}, {"", "AVPP"}, {"", "Tasa de AVPP"}};
  for (const Unit unit : provincesAndRegion(data.study())) {
    sheet.rows.push_back({unit.kind == UnitKind::region ? pages::RowKind::total : pages::RowKind::figures,
                          data.study().name(unit),
                          {data.deathsCell({unit}), data.crudeCell({unit}), data.standardisedCell({unit}),
                           data.lifeLostCell({unit}), data.lifeLostRateCell({unit})}});
  }
  std::vector<std::string> notes = tableNotes(sheet, data.study());
  notes.emplace_back(
      "Tasas por 100.000 habitantes. AVPP: años de vida potencialmente perdidos antes de los 70; su tasa, por 100.000 "
      "menores de esa edad.");
  flow.table(sheet, notes);
}

}  // namespace

void addProvinces(Flow& flow, const ReportData& data) {
  flow.section("Mortalidad por provincias");
  const std::vector<DotRow> rows = dotRows(data);
  if (rows.empty()) flow.paragraphs("Ninguna provincia tiene una tasa que se pueda publicar.");
  const std::size_t charts = (rows.size() + kMostRows - 1) / kMostRows;
  for (std::size_t i = 0; i < charts; ++i) {
    const auto from = rows.begin() + static_cast<std::ptrdiff_t>(i * rows.size() / charts);
    const auto to = rows.begin() + static_cast<std::ptrdiff_t>((i + 1) * rows.size() / charts);
    addChart(flow, data, {from, to});
  }
  addRates(flow, data);
  addIndicators(flow, data);
}

}  // namespace study::reports

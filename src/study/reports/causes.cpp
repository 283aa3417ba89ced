#include <algorithm>

#include "study/reports/phrases.h"
#include "study/reports/sections.h"

namespace study::reports {

namespace {

constexpr std::size_t kMostBars = 15;

pages::Row causeRow(const ReportData& data, const pages::CauseRow& cause) {
  const bool isAll = cause.cause == nullptr;
  pages::Row row{isAll ? pages::RowKind::total : pages::RowKind::figures, cause.name(), {}};
  const auto exists = [&](const SexChoice& sex) { return isAll || cause.cause->existsFor(sex); };
  for (const SexChoice& sex : kSexChoices) {
    row.cells.push_back(exists(sex) ? data.deathsCell({kWholeRegion, sex, cause}) : pages::missingCell());
  }
  row.cells.push_back(data.shareCell({kWholeRegion, kBoth, cause}));
  for (const SexChoice& sex : kSexChoices) {
    row.cells.push_back(exists(sex) ? data.standardisedCell({kWholeRegion, sex, cause}) : pages::missingCell());
  }
  return row;
}

pages::Sheet causesSheet(const ReportData& data, std::string_view list) {
  pages::Sheet sheet;
  sheet.caption = "Defunciones y tasas estandarizadas por causa. " + std::string(list) + ", " + data.year();
  sheet.rowHeader = "Causa";
  sheet.columns = {{"Defunciones", "Ambos sexos"},
                   {"Defunciones", "Hombres"},
                   {"Defunciones", "Mujeres"},
                   {"", "% de todas"},
                   {"Tasa estandarizada", "Ambos sexos"},
                   {"Tasa estandarizada", "Hombres"},
                   {"Tasa estandarizada", "Mujeres"}};
  for (const pages::CauseRow& cause : data.causes(list)) sheet.rows.push_back(causeRow(data, cause));
  sheet.rows.push_back(causeRow(data, {}));
  return sheet;
}

void addBars(Flow& flow, const ReportData& data, std::string_view list) {
  if (data.deaths({}).value_or(0) == 0) return;
  std::vector<pages::CauseRow> causes = causesByDeaths(data, list, kBoth);
  causes.resize(std::min(causes.size(), kMostBars));
  const QRectF box =
      flow.figure("Gráfico", "Defunciones por causa. " + std::string(list) + ", ambos sexos, " + data.year(),
                  16 * static_cast<double>(causes.size()) + 30);
  paintChart(flow.page(), box, deathsChart(data, causes, kBoth));
  flow.source();
}

// Men and women of one cause side by side, causes by the higher of their rates.
DotChart sexesChart(const ReportData& data, std::string_view list) {
  DotChart chart;
  chart.series = {{"Hombres", kMen}, {"Mujeres", kWomen}};
  chart.axis = "Tasa estandarizada por 100.000";
  chart.startsAtZero = true;
  std::vector<std::pair<double, DotRow>> rows;
  for (const pages::CauseRow& cause : data.causes(list)) {
    DotRow row{cause.name(), {}};
    double highest = -1;
    for (const SexChoice& sex : {kMenOnly, kWomenOnly}) {
      const Subject subject{kWholeRegion, sex, cause};
      const std::optional<Rate> rate = cause.cause->existsFor(sex) ? data.standardised(subject) : std::nullopt;
      row.dots.push_back(rate ? std::optional(Dot{rate->rate, std::nullopt, data.isUnstable(subject)}) : std::nullopt);
      if (rate) highest = std::max(highest, rate->rate);
    }
    if (highest >= 0) rows.emplace_back(highest, std::move(row));
  }
  std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  rows.resize(std::min<std::size_t>(rows.size(), 25));
  for (auto& [rate, row] : rows) chart.rows.push_back(std::move(row));
  return chart;
}

void addSexes(Flow& flow, const ReportData& data, std::string_view list) {
  if (data.deaths({}).value_or(0) == 0) return;
  const DotChart chart = sexesChart(data, list);
  if (chart.rows.empty()) return;
  const QRectF box =
      flow.figure("Gráfico", "Tasas estandarizadas por causa y sexo. " + std::string(list) + ", " + data.year(),
                  16 * static_cast<double>(chart.rows.size()) + 44);
  paintChart(flow.page(), box, chart);
  flow.source({"Punto hueco: tasa inestable, basada en menos de " + std::to_string(kStableDeaths) + " defunciones."});
}

void addTable(Flow& flow, const ReportData& data, std::string_view list) {
  const pages::Sheet sheet = causesSheet(data, list);
  std::vector<std::string> notes = tableNotes(sheet, data.study());
  notes.emplace_back("Tasas por 100.000 habitantes.");
  if (!pages::addsUp(data.study().causes, list)) {
    notes.emplace_back(
        "Las causas de la lista no suman el total: no abarcan todas las defunciones, o unas comprenden a otras.");
  }
  flow.table(sheet, notes);
}

}  // namespace

void addCauses(Flow& flow, const ReportData& data) {
  flow.section("Causas de muerte");
  const std::string_view first = mainList(data);
  if (data.causes(first).empty()) {
    flow.paragraphs("El estudio no publica causas de muerte.");
    return;
  }
  if (data.deaths({}).value_or(1) == 0) flow.paragraphs("En " + data.year() + " no se registraron defunciones.");
  addBars(flow, data, first);
  addTable(flow, data, first);
  if (first == kReducedList || data.causes(kReducedList).empty()) return;
  flow.newPage();
  addSexes(flow, data, kReducedList);
  addTable(flow, data, kReducedList);
}

}  // namespace study::reports

#include <algorithm>

#include "study/reports/phrases.h"
#include "study/reports/sections.h"

namespace study::reports {

namespace {

constexpr std::size_t kMostBars = 8;

// In percent of those of all causes.
pages::Cell lifeLostShare(const ReportData& data, const pages::CauseRow& cause) {
  const std::optional<double> part = data.lifeLost({kWholeRegion, kBoth, cause});
  const std::optional<double> all = data.lifeLost({});
  if (!part || !all) return pages::hiddenCell();
  return *all > 0 ? pages::decimalCell(100 * *part / *all) : pages::missingCell();
}

void addChart(Flow& flow, const ReportData& data, std::vector<pages::CauseRow> causes, std::string_view list) {
  const auto years = [&](const pages::CauseRow& cause) {
    return data.lifeLost({kWholeRegion, kBoth, cause}).value_or(-1);
  };
  std::stable_sort(causes.begin(), causes.end(), [&](const auto& a, const auto& b) { return years(a) > years(b); });
  causes.resize(std::min(causes.size(), kMostBars));
  if (causes.empty() || years(causes.front()) <= 0) return;
  BarChart chart;
  chart.axis = "Años de vida potencialmente perdidos antes de los 70";
  for (const pages::CauseRow& cause : causes) {
    const pages::Cell share = lifeLostShare(data, cause);
    std::string text = printedFigure(data.lifeLostCell({kWholeRegion, kBoth, cause}));
    if (share.mark == pages::Mark::none) text += " (" + share.text + " %)";
    chart.bars.push_back({cause.name(), data.lifeLost({kWholeRegion, kBoth, cause}), text});
  }
  const QRectF box = flow.figure(
      "Gráfico",
      "Años de vida potencialmente perdidos por causa. " + std::string(list) + ", ambos sexos, " + data.year(),
      16 * static_cast<double>(chart.bars.size()) + 30);
  paintChart(flow.page(), box, chart);
  flow.source();
}

pages::Row lifeLostRow(const ReportData& data, const pages::CauseRow& cause) {
  const bool isAll = cause.cause == nullptr;
  pages::Row row{isAll ? pages::RowKind::total : pages::RowKind::figures, cause.name(), {}};
  const auto exists = [&](const SexChoice& sex) { return isAll || cause.cause->existsFor(sex); };
  for (const SexChoice& sex : kSexChoices) {
    row.cells.push_back(exists(sex) ? data.lifeLostCell({kWholeRegion, sex, cause}) : pages::missingCell());
  }
  row.cells.push_back(lifeLostShare(data, cause));
  for (const SexChoice& sex : kSexChoices) {
    row.cells.push_back(exists(sex) ? data.lifeLostRateCell({kWholeRegion, sex, cause}) : pages::missingCell());
  }
  return row;
}

}  // namespace

void addLifeLost(Flow& flow, const ReportData& data) {
  flow.section("Años de vida potencialmente perdidos");
  flow.paragraphs(
      "Los años de vida potencialmente perdidos (AVPP) suman lo que faltaba a cada persona fallecida para cumplir los "
      "70 años: dan más peso a las muertes tempranas.");
  const std::string_view list = mainList(data);
  const std::vector<pages::CauseRow> causes = data.causes(list);
  addChart(flow, data, causes, list);
  pages::Sheet sheet;
  sheet.caption = "Años de vida potencialmente perdidos por causa y sexo. " + data.year();
  sheet.rowHeader = "Causa";
  sheet.columns = {
      {"AVPP", "Ambos sexos"},         {"AVPP", "Hombres"},         {"AVPP", "Mujeres"},        {"", "% de todos"},
      {"Tasa de AVPP", "Ambos sexos"}, {"Tasa de AVPP", "Hombres"}, {"Tasa de AVPP", "Mujeres"}};
  for (const pages::CauseRow& cause : causes) sheet.rows.push_back(lifeLostRow(data, cause));
  sheet.rows.push_back(lifeLostRow(data, {}));
  std::vector<std::string> notes = tableNotes(sheet, data.study());
  notes.emplace_back("Tasa de AVPP: años perdidos por 100.000 personas menores de 70 años; inestable con menos de " +
                     std::to_string(kStableDeaths) + " defunciones antes de esa edad.");
  flow.table(sheet, notes);
}

}  // namespace study::reports

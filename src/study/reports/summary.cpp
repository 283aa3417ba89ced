#include <algorithm>
#include <array>
#include <cmath>

#include "study/model/indicators.h"
#include "study/reports/charts.h"
#include "study/reports/phrases.h"
#include "study/reports/sections.h"

namespace study::reports {

namespace {

struct Card {
  std::string name;
  std::string figure;
  std::string detail;
};

void paintCards(Flow& flow, const std::array<Card, 4>& cards) {
  constexpr double kHeight = 62;
  constexpr double kGap = 9;
  constexpr TextStyle kName{7.5, false, kFaintText};
  const double width = (kContentWidth - 3 * kGap) / 4;
  double left = kLeft;
  for (const Card& card : cards) {
    flow.page().box({left, flow.y(), width, kHeight}, kTint);
    flow.page().box({left, flow.y(), 2.5, kHeight}, kBar);
    const double inner = width - 16;
    flow.page().text({left + 10, flow.y() + 15}, shortened(card.name, inner, kName), kName);
    TextStyle figure{17, true, kTitle};
    while (textWidth(card.figure, figure) > inner && figure.size > 8) figure.size -= 0.5;
    flow.page().text({left + 10, flow.y() + 37}, card.figure, figure);
    flow.page().text({left + 10, flow.y() + 53}, shortened(card.detail, inner, kName), kName);
    left += width + kGap;
  }
  flow.space(kHeight + 14);
}

std::array<Card, 4> cardsOf(const ReportData& data) {
  const Subject all;
  const pages::Cell limits = data.limitsCell(all);
  const std::optional<double> lifeLost = data.lifeLost(all);
  return {{{"Población", printedFigure(data.personsCell(all)), "personas"},
           {"Defunciones", printedFigure(data.deathsCell(all)), "en " + data.year()},
           {"Tasa estandarizada", printedFigure(data.standardisedCell(all)),
            limits.mark == pages::Mark::none ? "IC 95 %: " + limits.text : "por 100.000 habitantes"},
           {"Años de vida perdidos", lifeLost ? decimal(*lifeLost, 0) : pages::kHiddenMark, "antes de los 70 años"}}};
}

pages::Sheet figuresSheet(const ReportData& data) {
  struct Line {
    std::string name;
    pages::Cell (ReportData::*cell)(const Subject&) const;
  };
  const std::array<Line, 7> lines{{{"Población", &ReportData::personsCell},
                                   {"Defunciones", &ReportData::deathsCell},
                                   {"Tasa bruta (por 100.000)", &ReportData::crudeCell},
                                   {"Tasa estandarizada (por 100.000)", &ReportData::standardisedCell},
                                   {"Límites de confianza del 95 %", &ReportData::limitsCell},
                                   {"Años de vida potencialmente perdidos", &ReportData::lifeLostCell},
                                   {"Tasa de AVPP (por 100.000 menores de 70 años)", &ReportData::lifeLostRateCell}}};
  pages::Sheet sheet;
  sheet.caption = "Cifras principales. " + std::string(kRegion) + ", " + data.year();
  sheet.rowHeader = "Indicador";
  for (const SexChoice& sex : kSexChoices) sheet.columns.push_back({"", std::string(sex.name)});
  for (const Line& line : lines) {
    pages::Row row{pages::RowKind::figures, line.name, {}};
    for (const SexChoice& sex : kSexChoices) row.cells.push_back((data.*line.cell)({kWholeRegion, sex}));
    sheet.rows.push_back(std::move(row));
  }
  return sheet;
}

// "La tasa más alta corresponde a ..., la más baja a ..."
std::string provincesPhrase(const ReportData& data) {
  std::vector<std::pair<double, std::string>> rates;
  for (const Unit province : data.study().units(UnitKind::province)) {
    const std::optional<Rate> rate = data.standardised({province});
    if (rate && !data.isUnstable({province})) rates.emplace_back(rate->rate, data.study().name(province));
  }
  if (rates.size() < 2) return "";
  const auto [lowest, highest] = std::minmax_element(rates.begin(), rates.end());
  return "Entre las provincias, la tasa estandarizada va de " + decimal(lowest->first) + " en " + lowest->second +
         " a " + decimal(highest->first) + " en " + highest->second + ".";
}

// Against the year before, where the study has it.
std::string changePhrase(const ReportData& data) {
  if (data.yearIndex() == 0) return "";
  const Study& study = data.study();
  const Figure* before = data.book().find(data.yearIndex() - 1, kWholeRegion, kBoth.name, kStandardisedRateIndicator);
  const std::optional<Rate> now = data.standardised({});
  if (before == nullptr || before->unstable() || before->value <= 0 || !now || data.isUnstable({})) return "";
  const double change = 100 * (now->rate / before->value - 1);
  const std::string year = std::to_string(study.years[data.yearIndex() - 1]);
  if (decimal(std::abs(change)) == "0,0") return "La tasa estandarizada es prácticamente la de " + year + ".";
  return "Respecto a " + year + ", la tasa estandarizada " + (change > 0 ? "aumentó" : "disminuyó") + " un " +
         decimal(std::abs(change)) + " %.";
}

std::string sexesPhrase(const ReportData& data) {
  const std::optional<Rate> men = data.standardised({kWholeRegion, kMenOnly});
  const std::optional<Rate> women = data.standardised({kWholeRegion, kWomenOnly});
  if (!men || !women || men->rate <= 0 || women->rate <= 0) return "";
  if (data.isUnstable({kWholeRegion, kMenOnly}) || data.isUnstable({kWholeRegion, kWomenOnly})) return "";
  const bool isMens = men->rate >= women->rate;
  const double ratio = isMens ? men->rate / women->rate : women->rate / men->rate;
  return std::string("A igualdad de edad, la mortalidad de ") + (isMens ? "los hombres" : "las mujeres") + " es " +
         decimal(ratio, 2) + " veces la de " + (isMens ? "las mujeres" : "los hombres") + ".";
}

std::string deathsPhrase(const ReportData& data) {
  const std::optional<long> deaths = data.deaths({});
  const std::string where = " en " + std::string(kRegion);
  if (!deaths) return "El número de defunciones de " + data.year() + where + " es demasiado pequeño para publicarse.";
  if (*deaths == 0) return "En " + data.year() + " no se registraron defunciones" + where + ".";
  std::string text = "En " + data.year() + " se " + (*deaths == 1 ? "registró " : "registraron ") + whole(*deaths) +
                     (*deaths == 1 ? " defunción" : " defunciones") + where;
  const std::optional<long> men = data.deaths({kWholeRegion, kMenOnly});
  const std::optional<long> women = data.deaths({kWholeRegion, kWomenOnly});
  if (men && women) text += ": " + whole(*men) + " de hombres y " + whole(*women) + " de mujeres";
  return text + ".";
}

void addFirstCauses(Flow& flow, const ReportData& data, const SexChoice& sex, int colour) {
  constexpr std::size_t kFirst = 5;
  if (data.deaths({kWholeRegion, sex}).value_or(0) == 0) return;
  std::vector<pages::CauseRow> causes = causesByDeaths(data, mainList(data), sex);
  causes.resize(std::min(causes.size(), kFirst));
  if (causes.empty()) return;
  BarChart chart = deathsChart(data, causes, sex);
  chart.colour = colour;
  const QRectF box = flow.figure("Gráfico", "Primeras causas de muerte. " + std::string(sex.name) + ", " + data.year(),
                                 20 * static_cast<double>(causes.size()) + 26);
  paintChart(flow.page(), box, chart);
  flow.source();
}

}  // namespace

void addSummary(Flow& flow, const ReportData& data) {
  flow.section("Resumen");
  paintCards(flow, cardsOf(data));
  flow.paragraphs(joinedSentences({deathsPhrase(data), sexesPhrase(data), changePhrase(data), provincesPhrase(data)}));
  flow.space(6);
  const pages::Sheet sheet = figuresSheet(data);
  flow.table(sheet, tableNotes(sheet, data.study()));

  addFirstCauses(flow, data, kMenOnly, kMen);
  addFirstCauses(flow, data, kWomenOnly, kWomen);
}

}  // namespace study::reports

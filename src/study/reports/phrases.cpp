#include "study/reports/phrases.h"

#include <algorithm>

#include "study/reports/sheet_layout.h"
#include "text/spanish_number.h"

namespace study::reports {

std::string whole(long number) { return text::spanishNumber(static_cast<double>(number), 0); }

std::string decimal(double number, int decimals) { return text::spanishNumber(number, decimals); }

std::string joinedSentences(const std::vector<std::string>& sentences) {
  std::string all;
  for (const std::string& sentence : sentences) {
    if (!all.empty() && !sentence.empty()) all += ' ';
    all += sentence;
  }
  return all;
}

std::string printedFigure(const pages::Cell& cell) { return printed(cell); }

std::string_view mainList(const ReportData& data) {
  return data.causes(kBroadGroups).empty() ? kReducedList : kBroadGroups;
}

std::vector<pages::CauseRow> causesByDeaths(const ReportData& data, std::string_view list, const SexChoice& sex) {
  std::vector<pages::CauseRow> causes = pages::causeRows(data.study(), list, sex);
  std::stable_sort(causes.begin(), causes.end(), [&](const pages::CauseRow& a, const pages::CauseRow& b) {
    return data.deaths({kWholeRegion, sex, a}).value_or(-1) > data.deaths({kWholeRegion, sex, b}).value_or(-1);
  });
  return causes;
}

BarChart deathsChart(const ReportData& data, const std::vector<pages::CauseRow>& causes, const SexChoice& sex) {
  BarChart chart;
  chart.axis = "Defunciones";
  for (const pages::CauseRow& cause : causes) {
    const Subject subject{kWholeRegion, sex, cause};
    const std::optional<long> deaths = data.deaths(subject);
    const pages::Cell share = data.shareCell(subject);
    std::string text = printed(data.deathsCell(subject));
    if (deaths && share.mark == pages::Mark::none) text += " (" + share.text + " %)";
    chart.bars.push_back({cause.name(), deaths ? std::optional(static_cast<double>(*deaths)) : std::nullopt, text});
  }
  return chart;
}

}  // namespace study::reports

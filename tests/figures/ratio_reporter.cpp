#include "ratio_reporter.h"

#include <algorithm>
#include <iomanip>
#include <limits>

namespace figures {

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration || run.iterations == 0) continue;
    seconds_[run.run_name.function_name].push_back(run.real_accumulated_time / static_cast<double>(run.iterations));
  }
}

void RatioReporter::Finalize() {
  ConsoleReporter::Finalize();
  auto& out = GetOutputStream();
  out << "\nratio  goal   figure\n";
  for (const Figure& figure : figures_) {
    out << std::fixed << std::setprecision(3) << median(figure.ours) / median(figure.rival) << "  " << figure.goal
        << "  " << figure.title << "\n";
  }
}

double RatioReporter::median(const std::string& benchmark) const {
  const auto found = seconds_.find(benchmark);
  if (found == seconds_.end()) return std::numeric_limits<double>::quiet_NaN();
  std::vector<double> times = found->second;
  std::ranges::sort(times);
  return times[times.size() / 2];
}

}  // namespace figures

#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace figures {

// A pair of benchmarks of one run: ours, its rival, and what is aimed at.
struct Figure {
  std::string title;
  std::string ours;
  std::string rival;
  double goal = 1;  // ours is to take at most this many times what the rival takes
};

// Prints each benchmark as usual, and at the end each figure as a ratio of the medians of its repetitions.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  explicit RatioReporter(std::vector<Figure> figures) : ConsoleReporter(OO_Tabular), figures_(std::move(figures)) {}

  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  [[nodiscard]] double median(const std::string& benchmark) const;

  std::vector<Figure> figures_;
  std::map<std::string, std::vector<double>> seconds_;
};

}  // namespace figures

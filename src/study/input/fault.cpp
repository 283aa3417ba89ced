#include "study/input/fault.h"

#include <utility>

namespace study {

namespace {

std::string textOf(const std::vector<Fault>& printed, std::size_t total) {
  std::string text;
  for (const Fault& fault : printed) text += (text.empty() ? "" : "\n") + fault.text();
  if (total > printed.size()) text += "\n... and " + std::to_string(total - printed.size()) + " more";
  return text;
}

}  // namespace

std::string Fault::text() const {
  return file + (line > 0 ? ":" + std::to_string(line) : "") + ": " + message + "; " + remedy;
}

InputFaults::InputFaults(std::vector<Fault> faults, const std::vector<Fault>& printed, std::size_t total)
    : StudyError(textOf(printed, total)), faults_(std::move(faults)), total_(total) {}

}  // namespace study

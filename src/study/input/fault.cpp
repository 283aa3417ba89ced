#include "study/input/fault.h"

#include <algorithm>
#include <utility>

namespace study {

namespace {

std::string textOf(const std::vector<Fault>& faults, std::size_t total) {
  const std::size_t printed = std::min(faults.size(), InputFaults::kPrinted);
  std::string text;
  for (std::size_t i = 0; i < printed; ++i) text += (i > 0 ? "\n" : "") + faults[i].text();
  if (total > printed) text += "\n... and " + std::to_string(total - printed) + " more";
  return text;
}

}  // namespace

std::string Fault::text() const {
  return file + (line > 0 ? ":" + std::to_string(line) : "") + ": " + message + "; " + remedy;
}

InputFaults::InputFaults(std::vector<Fault> faults, std::size_t total)
    : StudyError(textOf(faults, total)), faults_(std::move(faults)), total_(total) {}

}  // namespace study

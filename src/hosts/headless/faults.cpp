#include "hosts/headless/faults.h"

#include <algorithm>
#include <array>

#include "hosts/headless/wildcard.h"

namespace headless {

Failure failureNumbered(int number, const std::string& description) {
  if (!description.empty()) return {number, description};
  const std::array known{failures::overflow(),
                         failures::subscript(),
                         failures::typeMismatch(),
                         failures::fileNotFound(),
                         failures::noObject(),
                         failures::invalidPropertyValue(),
                         failures::readOnlyText(),
                         failures::cannotCreateObject(),
                         failures::engineRejected("La instrucción no es válida")};
  const auto found = std::ranges::find(known, number, &Failure::number);
  return found == known.end() ? Failure(number, "Error definido por la aplicación o el objeto") : *found;
}

void Faults::failNext(const std::string& pattern, const Failure& failure) { byLine_.push_back({pattern, failure}); }

void Faults::failEngineCall(int number, const Failure& failure) {
  byNumber_.push_back({engineCalls_ + number, failure});
}

std::optional<Failure> Faults::take(std::string_view line, bool isEngineCall) {
  std::optional<Failure> result;
  if (isEngineCall) {
    ++engineCalls_;
    const auto due = std::ranges::find(byNumber_, engineCalls_, &ByNumber::number);
    if (due != byNumber_.end()) {
      result.emplace(due->failure);
      byNumber_.erase(due);
      return result;
    }
  }
  const auto due =
      std::ranges::find_if(byLine_, [&](const ByLine& fault) { return matchesWildcard(fault.pattern, line); });
  if (due != byLine_.end()) {
    result.emplace(due->failure);
    byLine_.erase(due);
  }
  return result;
}

}  // namespace headless

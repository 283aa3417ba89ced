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
                         failures::pathAccess(),
                         failures::noObject(),
                         failures::invalidPropertyValue(),
                         failures::readOnlyText(),
                         failures::cannotCreateObject(),
                         failures::engineRejected("La instrucción no es válida")};
  const auto found = std::ranges::find(known, number, &Failure::number);
  return found == known.end() ? Failure(number, "Error definido por la aplicación o el objeto") : *found;
}

void Faults::failNext(const std::string& pattern, const Failure& failure) { byLine_.push_back({pattern, failure}); }

int Faults::calls(CallKind kind) const {
  const auto counted = calls_.find(kind);
  return counted == calls_.end() ? 0 : counted->second;
}

void Faults::failCall(CallKind kind, int number, const Failure& failure) {
  byNumber_.push_back({kind, calls(kind) + number, failure});
}

std::optional<Failure> Faults::take(std::string_view line, CallKind kind) {
  std::optional<Failure> result;
  const int number = ++calls_[kind];
  const auto numbered = std::ranges::find_if(
      byNumber_, [&](const ByNumber& fault) { return fault.kind == kind && fault.number == number; });
  if (numbered != byNumber_.end()) {
    result.emplace(numbered->failure);
    byNumber_.erase(numbered);
    return result;
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

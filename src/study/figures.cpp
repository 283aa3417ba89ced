#include "study/figures.h"

#include <numeric>

#include "study/rates.h"

namespace study {

namespace {

struct SexChoice {
  std::string_view name;
  std::vector<Sex> sums;
};

const std::vector<SexChoice>& sexChoices() {
  static const std::vector<SexChoice> choices{
      {"Ambos sexos", {Sex::men, Sex::women}}, {"Hombres", {Sex::men}}, {"Mujeres", {Sex::women}}};
  return choices;
}

void add(ByAge& sum, const ByAge& other) {
  for (std::size_t age = 0; age < kAgeGroups; ++age) sum[age] += other[age];
}

ByAge persons(const Counts& counts, const SexChoice& choice) {
  ByAge sum{};
  for (const Sex sex : choice.sums) add(sum, counts.personsOf(sex));
  return sum;
}

ByAge deaths(const Counts& counts, const SexChoice& choice, const std::vector<Cause>& causes) {
  ByAge sum{};
  for (const Sex sex : choice.sums) {
    for (const Cause cause : causes) add(sum, counts.deathsOf(cause, sex));
  }
  return sum;
}

std::vector<Cause> allCauses() {
  std::vector<Cause> causes;
  for (std::size_t i = 0; i < kCauses; ++i) causes.push_back(static_cast<Cause>(i));
  return causes;
}

bool exists(const PublishedCause& cause, const SexChoice& choice) {
  return cause.womenToo || choice.sums.front() == Sex::men;
}

void addCauses(std::vector<Figure>& result, const Counts& counts, const SexChoice& choice, std::string_view list) {
  const ByAge population = persons(counts, choice);
  if (!hasRate(population)) return;
  for (const PublishedCause& cause : publishedCauses()) {
    if (cause.list != list || !exists(cause, choice)) continue;
    result.push_back({choice.name, list, std::string(kCausePrefix) + std::string(cause.name),
                      standardisedRate(deaths(counts, choice, cause.sums), population)});
  }
}

void addGeneral(std::vector<Figure>& result, const Counts& counts, const SexChoice& choice) {
  const ByAge population = persons(counts, choice);
  const ByAge died = deaths(counts, choice, allCauses());
  const auto put = [&](std::string_view indicator, double value) {
    result.push_back({choice.name, kGeneralIndicators, std::string(indicator), value});
  };
  put("Fallecidos", static_cast<double>(total(died)));
  put("Población", static_cast<double>(total(population)));
  if (!hasRate(population)) return;
  put("Tasa bruta (x100.000)", crudeRate(died, population));
  put("Tasa estandarizada (x100.000)", standardisedRate(died, population));
}

}  // namespace

std::vector<Figure> figures(const Counts& counts) {
  std::vector<Figure> result;
  for (const SexChoice& choice : sexChoices()) {
    addCauses(result, counts, choice, kBroadGroups);
    addGeneral(result, counts, choice);
    addCauses(result, counts, choice, kReducedList);
  }
  return result;
}

SexCounts bothSexes(const Counts& counts) {
  const SexChoice& both = sexChoices().front();
  return {persons(counts, both), deaths(counts, both, allCauses())};
}

}  // namespace study

#include <algorithm>
#include <cmath>
#include <functional>

#include "study/reports/charts.h"
#include "study/reports/phrases.h"
#include "study/reports/sections.h"

namespace study::reports {

namespace {

// The groups of a pyramid: those of less than five years within the same five are one ("0" and "1-4").
struct AgeBand {
  std::string name;
  std::vector<std::size_t> ages;
};

std::vector<AgeBand> bandsOf(const std::vector<AgeGroup>& ages) {
  constexpr double kYears = 5;
  std::vector<AgeBand> bands;
  for (std::size_t i = 0; i < ages.size();) {
    const double end = (std::floor(ages[i].from / kYears) + 1) * kYears;
    AgeBand band{ages[i].name, {i}};
    std::size_t next = i + 1;
    while (next < ages.size() && ages[next].to && *ages[next].to <= end) band.ages.push_back(next++);
    if (band.ages.size() > 1) {
      band.name = decimal(ages[i].from, 0) + "-" + decimal(*ages[next - 1].to - 1, 0);
    }
    bands.push_back(std::move(band));
    i = next;
  }
  return bands;
}

bool areEquallyWide(const std::vector<AgeBand>& bands, const std::vector<AgeGroup>& ages) {
  std::vector<double> widths;
  for (const AgeBand& band : bands) {
    if (ages[band.ages.back()].to) widths.push_back(*ages[band.ages.back()].to - ages[band.ages.front()].from);
  }
  return std::adjacent_find(widths.begin(), widths.end(), std::not_equal_to<>()) == widths.end();
}

long personsOf(const ByAge& persons, const AgeBand& band) {
  long sum = 0;
  for (const std::size_t age : band.ages) sum += persons[age];
  return sum;
}

// Persons from an age on, or below it; none where a group holds both.
std::optional<long> personsBeyond(const ByAge& persons, const std::vector<AgeGroup>& ages, double limit, bool isAbove) {
  long sum = 0;
  for (std::size_t i = 0; i < ages.size(); ++i) {
    if (ages[i].from < limit && (!ages[i].to || *ages[i].to > limit)) return std::nullopt;
    if ((ages[i].from >= limit) == isAbove) sum += persons[i];
  }
  return sum;
}

std::string phrase(const ReportData& data) {
  const ByAge persons = data.persons({});
  const long all = total(persons);
  if (all == 0) return "El estudio no registra población en " + data.year() + ".";
  const auto percent = [&](long part) { return decimal(100.0 * static_cast<double>(part) / static_cast<double>(all)); };
  const long women = total(data.persons({kWholeRegion, kWomenOnly}));
  std::string text = "En " + data.year() + " vivían en " + std::string(kRegion) + " " + whole(all) +
                     (all == 1 ? " persona; el " : " personas; el ") + percent(women) + " % eran mujeres.";
  constexpr double kAdult = 15;
  constexpr double kOld = 65;
  const std::optional<long> young = personsBeyond(persons, data.study().ages, kAdult, false);
  const std::optional<long> old = personsBeyond(persons, data.study().ages, kOld, true);
  if (young) text += " El " + percent(*young) + " % tenía menos de 15 años" + (old ? " y" : ".");
  if (old)
    text += std::string(young ? " el " : " El ") + percent(*old) + " %" + (young ? "" : " tenía") + " 65 años o más.";
  return text;
}

}  // namespace

void addPopulation(Flow& flow, const ReportData& data) {
  flow.section("Población");
  flow.paragraphs(phrase(data));
  flow.space(6);
  if (total(data.persons({})) == 0) return;
  const std::vector<AgeBand> bands = bandsOf(data.study().ages);
  const ByAge men = data.persons({kWholeRegion, kMenOnly});
  const ByAge women = data.persons({kWholeRegion, kWomenOnly});
  Pyramid pyramid{{"Hombres", kMen}, {"Mujeres", kWomen}, {}, "Personas"};
  for (const AgeBand& band : bands) {
    pyramid.bands.push_back(
        {band.name, static_cast<double>(personsOf(men, band)), static_cast<double>(personsOf(women, band))});
  }
  const double height = std::min(40 + 21 * static_cast<double>(bands.size()), flow.room() - 60);
  const QRectF box =
      flow.figure("Gráfico", "Población por sexo y edad. " + std::string(kRegion) + ", " + data.year(), height);
  paintChart(flow.page(), box, pyramid);
  std::vector<std::string> notes;
  if (!areEquallyWide(bands, data.study().ages)) {
    notes.emplace_back("Los grupos de edad no tienen todos la misma amplitud: los más amplios reúnen más personas.");
  }
  flow.source(notes);
}

}  // namespace study::reports

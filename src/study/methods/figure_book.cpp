#include "study/methods/figure_book.h"

#include <algorithm>
#include <optional>
#include <string>

#include "study/methods/hidden_deaths.h"
#include "study/methods/rates.h"
#include "study/methods/summed_counts.h"
#include "study/model/indicators.h"

namespace study {

namespace {

enum class Measure { deaths, population, crudeRate, standardisedRate, causeRate };

// What the figures of a line are computed from.
struct Definition {
  const SexChoice* sex;
  Measure measure;
  const PublishedCause* cause;  // of causeRate only
};

void addCauses(std::vector<Definition>& definitions, const SexChoice& sex, const CauseList& causes,
               std::string_view list) {
  for (const PublishedCause& cause : causes.published) {
    if (cause.list == list && cause.existsFor(sex)) definitions.push_back({&sex, Measure::causeRate, &cause});
  }
}

// One for each line, in the order of publication.
std::vector<Definition> definitionsOf(const CauseList& causes) {
  using enum Measure;
  std::vector<Definition> definitions;
  for (const SexChoice& sex : kSexChoices) {
    addCauses(definitions, sex, causes, kBroadGroups);
    for (const Measure measure : {deaths, population, crudeRate, standardisedRate}) {
      definitions.push_back({&sex, measure, nullptr});
    }
    addCauses(definitions, sex, causes, kReducedList);
  }
  return definitions;
}

FigureLine generalLine(const SexChoice& sex, std::string_view indicator, bool isRate) {
  return {sex.name, kGeneralIndicators, std::string(indicator), isRate};
}

FigureLine lineOf(const Definition& definition) {
  switch (definition.measure) {
    case Measure::deaths:
      return generalLine(*definition.sex, kDeathsIndicator, false);
    case Measure::population:
      return generalLine(*definition.sex, kPopulationIndicator, false);
    case Measure::crudeRate:
      return generalLine(*definition.sex, kCrudeRateIndicator, true);
    case Measure::standardisedRate:
      return generalLine(*definition.sex, kStandardisedRateIndicator, true);
    case Measure::causeRate:
      break;
  }
  const PublishedCause& cause = *definition.cause;
  return {definition.sex->name, cause.list == kBroadGroups ? kBroadGroups : kReducedList,
          std::string(kCausePrefix) + cause.name, true};
}

struct Amount {
  std::optional<double> value;
  long deaths = 0;
};

Amount amountOf(const std::optional<Rate>& rate, long deaths) {
  return {rate ? std::optional(rate->rate) : std::nullopt, deaths};
}

// The figures of one unit and sex.
class SexFigures {
 public:
  SexFigures(const Counts& counts, const SexChoice& sex, const StandardPopulation& standard)
      : counts_(counts), sex_(sex), standard_(standard), persons_(counts.persons(sex)), deaths_(counts.deaths(sex)) {}

  [[nodiscard]] Amount amount(const Definition& definition) const {
    const long died = total(deaths_);
    switch (definition.measure) {
      case Measure::deaths:
        return {static_cast<double>(died), died};
      case Measure::population:
        return {static_cast<double>(total(persons_)), 0};
      case Measure::crudeRate:
        return amountOf(crudeRate(deaths_, persons_), died);
      case Measure::standardisedRate:
        return amountOf(standardisedRate(deaths_, persons_, standard_), died);
      case Measure::causeRate:
        break;
    }
    const ByAge ofCause = counts_.deaths(sex_, definition.cause->sums);
    return amountOf(standardisedRate(ofCause, persons_, standard_), total(ofCause));
  }

 private:
  const Counts& counts_;
  const SexChoice& sex_;
  const StandardPopulation& standard_;
  ByAge persons_;
  ByAge deaths_;
};

}  // namespace

// Computes the pages of a book.
class FigureBook::Writer {
 public:
  Writer(const Study& study, const std::vector<Definition>& definitions, const std::vector<FigureLine>& lines)
      : study_(study), definitions_(definitions), lines_(lines) {}

  // Of a year: the region, the provinces, the zones.
  [[nodiscard]] std::vector<Page> pagesOf(std::size_t year) const {
    const HiddenDeaths hidden(study_, year);
    const std::vector<Counts> units = summedCounts(study_, year);
    std::vector<Page> pages;
    for (std::size_t i = 0; i < units.size(); ++i) {
      pages.push_back(pageOf(units[i], hidden, i == 0 ? Unit{} : Unit{UnitKind::province, i - 1}));
    }
    for (const Unit zone : study_.units(UnitKind::zone)) {
      pages.push_back(pageOf(study_.counts[year][zone.index], hidden, zone));
    }
    return pages;
  }

 private:
  // Which deaths a figure rests on, as HiddenDeaths numbers causes; the population rests on none.
  [[nodiscard]] bool isHidden(const Definition& definition, const HiddenDeaths& hidden, Unit unit) const {
    if (definition.measure == Measure::population) return false;
    const std::size_t cause =
        definition.cause == nullptr
            ? HiddenDeaths::kAllCauses
            : HiddenDeaths::causeNumber(static_cast<std::size_t>(definition.cause - study_.causes.published.data()));
    return hidden.areHidden(unit, *definition.sex, cause);
  }

  [[nodiscard]] Page pageOf(const Counts& counts, const HiddenDeaths& hidden, Unit unit) const {
    Page page;
    page.figures.reserve(lines_.size());
    std::optional<SexFigures> figures;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const Definition& definition = definitions_[i];
      if (i == 0 || definition.sex != definitions_[i - 1].sex) {
        figures.emplace(counts, *definition.sex, study_.standard);
      }
      const Amount amount = figures->amount(definition);
      if (!amount.value) continue;
      if (isHidden(definition, hidden, unit)) {
        page.suppressed.push_back(&lines_[i]);
      } else {
        page.figures.push_back({&lines_[i], *amount.value, amount.deaths});
      }
    }
    return page;
  }

  const Study& study_;
  const std::vector<Definition>& definitions_;
  const std::vector<FigureLine>& lines_;
};

FigureBook::FigureBook(const Study& study) : provinces_(study.provinces.size()) {
  const std::vector<Definition> definitions = definitionsOf(study.causes);
  for (const Definition& definition : definitions) lines_.push_back(lineOf(definition));
  const Writer writer(study, definitions, lines_);
  for (std::size_t year = 0; year < study.counts.size(); ++year) pages_.push_back(writer.pagesOf(year));
}

const FigureBook::Page& FigureBook::page(std::size_t year, Unit unit) const {
  const std::vector<Page>& pages = pages_[year];
  switch (unit.kind) {
    case UnitKind::region:
      return pages.front();
    case UnitKind::province:
      return pages[1 + unit.index];
    case UnitKind::zone:
      break;
  }
  return pages[1 + provinces_ + unit.index];
}

const Figure* FigureBook::find(std::size_t year, Unit unit, std::string_view sex, std::string_view indicator) const {
  const FigureLine* line = lineFor(sex, indicator);
  for (const Figure& figure : page(year, unit).figures) {
    if (figure.line == line) return &figure;
  }
  return nullptr;
}

bool FigureBook::isSuppressed(std::size_t year, Unit unit, std::string_view sex, std::string_view indicator) const {
  const FigureLine* line = lineFor(sex, indicator);
  const std::vector<const FigureLine*>& suppressed = page(year, unit).suppressed;
  return line != nullptr && std::find(suppressed.begin(), suppressed.end(), line) != suppressed.end();
}

const FigureLine* FigureBook::lineFor(std::string_view sex, std::string_view indicator) const {
  // The reduced list stands last.
  const auto line = std::find_if(lines_.rbegin(), lines_.rend(), [&](const FigureLine& candidate) {
    return candidate.sex == sex && candidate.indicator == indicator;
  });
  return line == lines_.rend() ? nullptr : &*line;
}

}  // namespace study

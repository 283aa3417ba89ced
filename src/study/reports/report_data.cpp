#include "study/reports/report_data.h"

#include <set>
#include <string>

#include "study/methods/life_lost.h"
#include "text/spanish_number.h"

namespace study::reports {

namespace {

long died(const ByAge& deaths) { return total(deaths); }

}  // namespace

ReportData::ReportData(const Study& study, const FigureBook& book, std::size_t year)
    : study_(study), book_(book), year_(year), figures_(study, year), scales_(study, book) {}

ByAge ReportData::deathsByAge(const Subject& subject) const {
  if (subject.unit.kind != UnitKind::zone) return figures_.deaths(subject.unit, subject.sex, subject.cause);
  return figures_.counts(subject.unit).deaths(subject.sex);
}

bool ReportData::isHidden(const Subject& subject) const {
  if (subject.cause.cause == nullptr) return figures_.areDeathsHidden(subject.unit, subject.sex);
  return figures_.areDeathsHidden(subject.unit, subject.sex, subject.cause, study_.ages.size());
}

bool ReportData::isLifeLostHidden(const Subject& subject) const {
  if (subject.cause.cause == nullptr) return figures_.isLifeLostHidden(subject.unit, subject.sex);
  return figures_.isLifeLostHidden(subject.unit, subject.sex, subject.cause);
}

std::optional<long> ReportData::deaths(const Subject& subject) const {
  if (isHidden(subject)) return std::nullopt;
  return died(deathsByAge(subject));
}

std::optional<long> ReportData::deathsAt(const Subject& subject, std::size_t age) const {
  if (figures_.areDeathsHidden(subject.unit, subject.sex, subject.cause, age)) return std::nullopt;
  return deathsByAge(subject)[age];
}

std::optional<Rate> ReportData::crude(const Subject& subject) const {
  if (isHidden(subject)) return std::nullopt;
  return crudeRate(deathsByAge(subject), persons(subject));
}

std::optional<Rate> ReportData::standardised(const Subject& subject) const {
  if (isHidden(subject)) return std::nullopt;
  return standardisedRate(deathsByAge(subject), persons(subject), study_.standard);
}

std::optional<double> ReportData::rateAt(const Subject& subject, std::size_t age) const {
  const std::optional<long> deaths = deathsAt(subject, age);
  return deaths ? ageSpecificRate(*deaths, persons(subject)[age]) : std::nullopt;
}

std::optional<double> ReportData::lifeLost(const Subject& subject) const {
  if (isLifeLostHidden(subject)) return std::nullopt;
  return yearsOfLifeLost(deathsByAge(subject), study_.ages);
}

std::optional<double> ReportData::lifeLostRate(const Subject& subject) const {
  if (isLifeLostHidden(subject)) return std::nullopt;
  return yearsOfLifeLostRate(deathsByAge(subject), persons(subject), study_.ages);
}

bool ReportData::isUnstable(const Subject& subject) const { return died(deathsByAge(subject)) < kStableDeaths; }

pages::Cell ReportData::personsCell(const Subject& subject) const { return pages::countCell(total(persons(subject))); }

pages::Cell ReportData::deathsCell(const Subject& subject) const {
  const std::optional<long> number = deaths(subject);
  return number ? pages::countCell(*number) : pages::hiddenCell();
}

pages::Cell ReportData::deathsCellAt(const Subject& subject, std::size_t age) const {
  const std::optional<long> number = deathsAt(subject, age);
  return number ? pages::countCell(*number) : pages::hiddenCell();
}

pages::Cell ReportData::rateCellAt(const Subject& subject, std::size_t age) const {
  const std::optional<long> number = deathsAt(subject, age);
  return number ? pages::rateCell(rateAt(subject, age), *number) : pages::hiddenCell();
}

template <typename Function>
pages::Cell ReportData::rated(const Subject& subject, Function cellOf) const {
  if (isHidden(subject)) return pages::hiddenCell();
  const std::optional<Rate> rate = cellOf();
  return pages::rateCell(rate ? std::optional(rate->rate) : std::nullopt, died(deathsByAge(subject)));
}

pages::Cell ReportData::crudeCell(const Subject& subject) const {
  return rated(subject, [&] { return crude(subject); });
}

pages::Cell ReportData::standardisedCell(const Subject& subject) const {
  return rated(subject, [&] { return standardised(subject); });
}

pages::Cell ReportData::limitsCell(const Subject& subject) const {
  if (isHidden(subject)) return pages::hiddenCell();
  const std::optional<Rate> rate = standardised(subject);
  if (!rate) return pages::missingCell();
  return {text::spanishNumber(rate->lower, 1) + " – " + text::spanishNumber(rate->upper, 1)};
}

pages::Cell ReportData::lifeLostCell(const Subject& subject) const {
  const std::optional<double> years = lifeLost(subject);
  return years ? pages::decimalCell(*years) : pages::hiddenCell();
}

pages::Cell ReportData::lifeLostRateCell(const Subject& subject) const {
  if (isLifeLostHidden(subject)) return pages::hiddenCell();
  return pages::rateCell(lifeLostRate(subject), pages::earlyDeaths(deathsByAge(subject), study_.ages));
}

pages::Cell ReportData::shareCell(const Subject& subject) const {
  const std::optional<long> part = deaths(subject);
  const std::optional<long> whole = deaths({subject.unit, subject.sex});
  if (!part || !whole) return pages::hiddenCell();
  if (*whole == 0) return pages::missingCell();
  return pages::decimalCell(100.0 * static_cast<double>(*part) / static_cast<double>(*whole));
}

std::vector<pages::CauseRow> ReportData::causes(std::string_view list) const {
  return pages::causeRows(study_, list, kBoth);
}

std::vector<std::string> tableNotes(const pages::Sheet& sheet, const Study& study) {
  const std::set<pages::Mark> marks = pages::marksOf(sheet);
  std::vector<std::string> notes;
  if (marks.contains(pages::Mark::unstable)) {
    notes.push_back(pages::kUnstableMark + (" Tasa inestable: se basa en menos de " + std::to_string(kStableDeaths)) +
                    " defunciones.");
  }
  if (marks.contains(pages::Mark::missing)) {
    notes.push_back(pages::kMissingMark +
                    std::string(" No hay cifra: la causa no se da en ese sexo, o no hay de qué calcularla."));
  }
  if (marks.contains(pages::Mark::hidden)) {
    notes.push_back(pages::kHiddenMark +
                    (" Cifra que no se publica para proteger a las personas: corresponde a menos de " +
                     std::to_string(study.suppressBelow)) +
                    " defunciones, o permitiría deducir otra que no se publica.");
  }
  return notes;
}

}  // namespace study::reports

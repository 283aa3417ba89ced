#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "study/methods/figure_book.h"
#include "study/methods/rates.h"
#include "study/model/study.h"
#include "study/pages/sheet.h"
#include "study/pages/year_figures.h"
#include "study/thematic/thematic_scales.h"

namespace study::reports {

inline constexpr Unit kWholeRegion{UnitKind::region, 0};
inline constexpr const SexChoice& kBoth = kSexChoices[0];
inline constexpr const SexChoice& kMenOnly = kSexChoices[1];
inline constexpr const SexChoice& kWomenOnly = kSexChoices[2];

// Whom the deaths of a figure are of: a unit's, of a sex, by all causes or, in the region or a province, by one.
struct Subject {
  Unit unit = kWholeRegion;
  SexChoice sex = kBoth;
  pages::CauseRow cause = {};
};

// What a report tells of: a year of a study. All of it outlives the report.
//
// Numbers are hidden where the study's maps and pages hide them, so that none gives away what another keeps.
class ReportData {
 public:
  ReportData(const Study& study, const FigureBook& book, std::size_t year);

  [[nodiscard]] const Study& study() const { return study_; }
  [[nodiscard]] const FigureBook& book() const { return book_; }
  [[nodiscard]] const ThematicScales& scales() const { return scales_; }
  [[nodiscard]] std::size_t yearIndex() const { return year_; }
  [[nodiscard]] std::string year() const { return figures_.year(); }

  [[nodiscard]] ByAge persons(const Subject& subject) const {
    return figures_.counts(subject.unit).persons(subject.sex);
  }

  // None: hidden. By age: of that age group alone.
  [[nodiscard]] std::optional<long> deaths(const Subject& subject) const;
  [[nodiscard]] std::optional<long> deathsAt(const Subject& subject, std::size_t age) const;
  // None: hidden, or there are no persons.
  [[nodiscard]] std::optional<Rate> crude(const Subject& subject) const;
  [[nodiscard]] std::optional<Rate> standardised(const Subject& subject) const;
  [[nodiscard]] std::optional<double> rateAt(const Subject& subject, std::size_t age) const;
  [[nodiscard]] std::optional<double> lifeLost(const Subject& subject) const;
  [[nodiscard]] std::optional<double> lifeLostRate(const Subject& subject) const;

  // As they stand in tables, marked where unstable, missing or hidden.
  [[nodiscard]] pages::Cell personsCell(const Subject& subject) const;
  [[nodiscard]] pages::Cell deathsCell(const Subject& subject) const;
  [[nodiscard]] pages::Cell deathsCellAt(const Subject& subject, std::size_t age) const;
  [[nodiscard]] pages::Cell rateCellAt(const Subject& subject, std::size_t age) const;
  [[nodiscard]] pages::Cell crudeCell(const Subject& subject) const;
  [[nodiscard]] pages::Cell standardisedCell(const Subject& subject) const;
  [[nodiscard]] pages::Cell limitsCell(const Subject& subject) const;  // "98,1 – 112,4"
  [[nodiscard]] pages::Cell lifeLostCell(const Subject& subject) const;
  [[nodiscard]] pages::Cell lifeLostRateCell(const Subject& subject) const;
  // Of all causes, in percent.
  [[nodiscard]] pages::Cell shareCell(const Subject& subject) const;

  // Whether a rate of the subject rests on too few deaths.
  [[nodiscard]] bool isUnstable(const Subject& subject) const;
  // The published causes of a list that have figures of both sexes together.
  [[nodiscard]] std::vector<pages::CauseRow> causes(std::string_view list) const;

 private:
  [[nodiscard]] ByAge deathsByAge(const Subject& subject) const;
  [[nodiscard]] bool isHidden(const Subject& subject) const;
  [[nodiscard]] bool isLifeLostHidden(const Subject& subject) const;
  template <typename Function>
  [[nodiscard]] pages::Cell rated(const Subject& subject, Function cellOf) const;

  const Study& study_;
  const FigureBook& book_;
  std::size_t year_;
  pages::YearFigures figures_;
  ThematicScales scales_;
};

// What the marks in a table mean, for a note each.
[[nodiscard]] std::vector<std::string> tableNotes(const pages::Sheet& sheet, const Study& study);

}  // namespace study::reports

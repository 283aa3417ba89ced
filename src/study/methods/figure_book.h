#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "study/methods/figure.h"
#include "study/model/study.h"

namespace study {

// All figures that the study publishes of its units, computed once and shared by whoever writes them.
//
// Figures of a unit in a year stand by sex (Ambos sexos, Hombres, Mujeres), then by type (the broad groups, the general
// indicators, the reduced list), then in the order of the lists. Figures of both sexes, of provinces and of the region
// are computed from summed persons and deaths, never from other figures. A sex without persons has no rates; a cause
// that a sex does not have has no figure; a figure that may not be published (see HiddenDeaths) is left out.
class FigureBook {
 public:
  explicit FigureBook(const Study& study);
  FigureBook(FigureBook&&) = default;
  FigureBook& operator=(FigureBook&&) = default;

  // `year` is an index of the study's years here and below.
  [[nodiscard]] const std::vector<Figure>& of(std::size_t year, Unit unit) const { return page(year, unit).figures; }

  // None (null): there is no such figure, or it is suppressed. An indicator that both lists have is the reduced list's.
  [[nodiscard]] const Figure* find(std::size_t year, Unit unit, std::string_view sex, std::string_view indicator) const;

  // Whether the figure that `find` does not find is suppressed.
  [[nodiscard]] bool isSuppressed(std::size_t year, Unit unit, std::string_view sex, std::string_view indicator) const;

 private:
  struct Page {
    std::vector<Figure> figures;
    std::vector<const FigureLine*> suppressed;
  };

  class Writer;

  [[nodiscard]] const FigureLine* lineFor(std::string_view sex, std::string_view indicator) const;
  [[nodiscard]] const Page& page(std::size_t year, Unit unit) const;

  std::vector<FigureLine> lines_;
  std::size_t provinces_ = 0;
  std::vector<std::vector<Page>> pages_;  // by year; the region, the provinces, the zones
};

}  // namespace study

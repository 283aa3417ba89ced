#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "study/methods/figure_book.h"
#include "study/thematic/thematic_map.h"

namespace study {

// How an indicator is shown: rates by colours, counts by the size of a sign.
[[nodiscard]] bool isCount(std::string_view indicator);

// What the maps of an indicator have in common, so that they can be compared: the same limits for all years, sexes and
// frames of the same kind of unit.
class ThematicScales {
 public:
  ThematicScales(const Study& study, const FigureBook& book);

  // The limits of the classes of a rate: at least two, ascending; class i is limits[i] <= value < limits[i + 1].
  [[nodiscard]] const std::vector<double>& limits(const ThematicMap& map) const;
  // A readable number that no count of the indicator exceeds, greater than 0.
  [[nodiscard]] double greatest(const ThematicMap& map) const;

 private:
  using Key = std::pair<UnitKind, std::string>;
  std::map<Key, std::vector<double>> limits_;
  std::map<Key, double> greatest_;
};

}  // namespace study

#pragma once

#include <string_view>
#include <vector>

#include "study/model/age_group.h"
#include "study/model/study.h"

namespace study {

// A published standard population that studies may be standardised to by its name.
struct PublishedStandard {
  std::string_view setting;  // as a study's settings call it: "europea 1976"
  StandardPopulation population;
  std::vector<AgeGroup> ages;  // of its weights
};

// The European standard populations of 1976 and 2013, each of 100,000 persons.
// 1976: J. Waterhouse et al. (eds.), "Cancer Incidence in Five Continents", vol. III, IARC Scientific Publications 15,
// Lyon 1976. 2013: Eurostat, "Revision of the European Standard Population", Luxembourg 2013, doi 10.2785/11470.
[[nodiscard]] const std::vector<PublishedStandard>& publishedStandards();

}  // namespace study

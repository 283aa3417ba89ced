#include "study/model/indicators.h"

namespace study {

std::string thematicIndicator(std::size_t index) {
  constexpr std::array kGeneral{kDeathsIndicator, kPopulationIndicator, kCrudeRateIndicator,
                                kStandardisedRateIndicator};
  static_assert(kGeneral.size() + kThematicCauses.size() == kThematicIndicators);
  if (index < kGeneral.size()) return std::string(kGeneral[index]);
  return std::string(kCausePrefix) + std::string(kThematicCauses.at(index - kGeneral.size()));
}

}  // namespace study

#include "study/thematic/legend_titles.h"

#include <gtest/gtest.h>

#include "study/model/indicators.h"
#include "study/model/sexes.h"
#include "text/utf8.h"

namespace study {
namespace {

TEST(LegendTitles, FitForEveryIndicatorAndSex) {
  for (std::size_t i = 0; i < kThematicIndicators; ++i) {
    const std::string indicator = thematicIndicator(i);
    EXPECT_LE(text::length(legendTitle(indicator)), kLegendTitleLength) << indicator;
    for (const SexChoice& sex : kSexChoices) {
      EXPECT_LE(text::length(legendSubtitle(indicator, sex.name, 2002)), kLegendTitleLength) << indicator;
    }
  }
}

TEST(LegendTitles, GeneralIndicatorsKeepTheirNames) {
  EXPECT_EQ(legendTitle(kCrudeRateIndicator), "Tasa bruta (x100.000)");
  EXPECT_EQ(legendTitle(kStandardisedRateIndicator), "Tasa estandarizada (x100.000)");
  EXPECT_EQ(legendSubtitle(kPopulationIndicator, "Mujeres", 1999), "Mujeres, 1999");
}

TEST(LegendTitles, CausesStandAlone) {
  EXPECT_EQ(legendTitle("Tasa estandarizada (x100.000) de Diabetes mellitus"), "Diabetes mellitus");
  EXPECT_EQ(legendTitle("Tasa estandarizada (x100.000) de Enfermedades del sistema digestivo"),
            "Enf. del sistema digestivo");
  EXPECT_EQ(legendSubtitle("Tasa estandarizada (x100.000) de Neumonía", "Ambos sexos", 2000),
            "Tasa x100.000, Ambos sexos, 2000");
}

}  // namespace
}  // namespace study

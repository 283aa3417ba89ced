#include "study/model/indicators.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "text/utf8.h"

namespace study {
namespace {

TEST(Indicators, ThematicOnesAreThoseOfTheProgramsList) {
  const std::vector<std::string> expected{
      "Fallecidos",
      "Población",
      "Tasa bruta (x100.000)",
      "Tasa estandarizada (x100.000)",
      "Tasa estandarizada (x100.000) de Accidentes de tráfico de vehículos de motor",
      "Tasa estandarizada (x100.000) de Diabetes mellitus",
      "Tasa estandarizada (x100.000) de Enfermedades cerebrovasculares",
      "Tasa estandarizada (x100.000) de Enfermedades crónicas de las vías respiratorias inferiores excepto asma",
      "Tasa estandarizada (x100.000) de Enfermedades del sistema circulatorio",
      "Tasa estandarizada (x100.000) de Enfermedades del sistema digestivo",
      "Tasa estandarizada (x100.000) de Enfermedades del sistema respiratorio",
      "Tasa estandarizada (x100.000) de Infarto agudo de miocardio",
      "Tasa estandarizada (x100.000) de Neumonía",
      "Tasa estandarizada (x100.000) de Trastornos mentales orgánicos senil y presenil",
      "Tasa estandarizada (x100.000) de Tumor maligno de colon",
      "Tasa estandarizada (x100.000) de Tumor maligno de estómago",
      "Tasa estandarizada (x100.000) de Tumor maligno de la mama",
      "Tasa estandarizada (x100.000) de Tumor maligno de la próstata",
      "Tasa estandarizada (x100.000) de Tumor maligno de la tráquea, de los bronquios y del pulmón",
      "Tasa estandarizada (x100.000) de Tumores",
  };
  std::vector<std::string> indicators;
  for (std::size_t i = 0; i < kThematicIndicators; ++i) indicators.push_back(thematicIndicator(i));
  EXPECT_EQ(indicators, expected);
  EXPECT_THROW(static_cast<void>(thematicIndicator(kThematicIndicators)), std::out_of_range);
}

TEST(Indicators, TheTreeCutsThePrefix) { EXPECT_EQ(text::length(kCausePrefix), 33u); }

}  // namespace
}  // namespace study

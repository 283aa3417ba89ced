#include "study/thematic/legend_titles.h"

#include <algorithm>
#include <array>

#include "study/model/indicators.h"

namespace study {

namespace {

struct ShortName {
  std::string_view cause;
  std::string_view title;
};

// Of the causes that are too long for a title.
constexpr std::array kShortNames{
    ShortName{"Accidentes de tráfico de vehículos de motor", "Accidentes de tráfico"},
    ShortName{"Enfermedades crónicas de las vías respiratorias inferiores excepto asma",
              "Enf. crónicas respir. inferiores"},
    ShortName{"Enfermedades del sistema circulatorio", "Enf. del sistema circulatorio"},
    ShortName{"Enfermedades del sistema digestivo", "Enf. del sistema digestivo"},
    ShortName{"Enfermedades del sistema respiratorio", "Enf. del sistema respiratorio"},
    ShortName{"Trastornos mentales orgánicos senil y presenil", "Trastornos mentales orgánicos"},
    ShortName{"Tumor maligno de la tráquea, de los bronquios y del pulmón", "Tumor de tráquea, bronq., pulmón"},
};

bool isCauseRate(std::string_view indicator) { return indicator.starts_with(kCausePrefix); }

}  // namespace

std::string legendTitle(std::string_view indicator) {
  if (!isCauseRate(indicator)) return std::string(indicator);
  const std::string_view cause = indicator.substr(kCausePrefix.size());
  const auto shorter =
      std::find_if(kShortNames.begin(), kShortNames.end(), [&](const ShortName& name) { return name.cause == cause; });
  return std::string(shorter == kShortNames.end() ? cause : shorter->title);
}

std::string legendSubtitle(std::string_view indicator, std::string_view sex, int year) {
  return (isCauseRate(indicator) ? "Tasa x100.000, " : "") + std::string(sex) + ", " + std::to_string(year);
}

std::string mapTitle(const Study& study, const ThematicMap& map) {
  const std::string units = map.units == UnitKind::province ? "Provincias" : "Zonas básicas de salud";
  return map.indicator + ". " + std::string(map.sex) + ", " + std::to_string(study.years[map.year]) + ". " + units +
         " de " + study.name(map.frame);
}

}  // namespace study

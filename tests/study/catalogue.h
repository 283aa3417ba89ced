#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "raw_figures.h"

// The catalogue of thematic maps as it must be.
namespace studytest {

inline constexpr std::array kIndicators{
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
inline constexpr const char* kProstate = "Tasa estandarizada (x100.000) de Tumor maligno de la próstata";

// A folder of maps and the units that they show: those of a year table, or one province's.
struct Frame {
  std::string folder;
  std::string table;
  std::string province;  // empty: all
  std::size_t units;
};

[[nodiscard]] std::vector<Frame> frames();

// What one map shows, of all units.
struct Subject {
  std::string table;
  std::string year;
  std::string sex;
  std::string indicator;

  auto operator<=>(const Subject&) const = default;
};

// Whether there are such figures at all.
[[nodiscard]] bool exists(const Subject& subject);

// A map's files in the sample study, without their endings.
[[nodiscard]] std::filesystem::path pathOf(const Frame& frame, const Subject& subject);

// Calls `use` with each frame and subject of the catalogue.
template <class Use>
void eachMap(const Use& use) {
  for (const Frame& frame : frames()) {
    for (const std::string year : kYears) {
      for (const std::string sex : kSexes) {
        for (const std::string indicator : kIndicators) use(frame, Subject{frame.table, year, sex, indicator});
      }
    }
  }
}

inline constexpr std::size_t kMaps = (2 + kProvinces) * kYears.size() * kSexes.size() * kIndicators.size();
static_assert(kMaps == 2400);

}  // namespace studytest

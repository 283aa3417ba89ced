#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace study {

// The type under which the general indicators are listed.
inline constexpr std::string_view kGeneralIndicators = "Indicadores generales";

inline constexpr std::string_view kDeathsIndicator = "Fallecidos";
inline constexpr std::string_view kPopulationIndicator = "Población";
inline constexpr std::string_view kCrudeRateIndicator = "Tasa bruta (x100.000)";
inline constexpr std::string_view kStandardisedRateIndicator = "Tasa estandarizada (x100.000)";

// The tree of the program shows the cause alone: it cuts these 33 characters.
inline constexpr std::string_view kCausePrefix = "Tasa estandarizada (x100.000) de ";

// The causes of the thematic maps, in the order in which the program lists them. They are causes of the reduced list.
inline constexpr std::array<std::string_view, 16> kThematicCauses{
    "Accidentes de tráfico de vehículos de motor",
    "Diabetes mellitus",
    "Enfermedades cerebrovasculares",
    "Enfermedades crónicas de las vías respiratorias inferiores excepto asma",
    "Enfermedades del sistema circulatorio",
    "Enfermedades del sistema digestivo",
    "Enfermedades del sistema respiratorio",
    "Infarto agudo de miocardio",
    "Neumonía",
    "Trastornos mentales orgánicos senil y presenil",
    "Tumor maligno de colon",
    "Tumor maligno de estómago",
    "Tumor maligno de la mama",
    "Tumor maligno de la próstata",
    "Tumor maligno de la tráquea, de los bronquios y del pulmón",
    "Tumores",
};

// The twenty indicators of the thematic maps, in that order; each is also a workspace's file name.
inline constexpr std::size_t kThematicIndicators = 4 + kThematicCauses.size();
[[nodiscard]] std::string thematicIndicator(std::size_t index);  // index < kThematicIndicators

}  // namespace study

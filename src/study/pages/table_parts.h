#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "study/pages/sheet.h"
#include "study/pages/year_figures.h"

// What the kinds of statistical tables have in common.
namespace study::pages {

// Their names, by the number of their kind.
inline constexpr std::array<std::string_view, 5> kTableNames{
    "Años de vida potencialmente perdidos y Tasas de AVPP por provincias",
    "Defunciones y Tasas específicas por provincias",
    "Distribución de defunciones por provincias",
    "Indicadores principales por provincias",
    "Indicadores principales por zonas básicas de salud",
};

inline constexpr std::string_view kNoPersons = "No hay población de la que calcular la tasa.";
inline constexpr std::string_view kLifeLostNote =
    "AVPP: años de vida potencialmente perdidos antes de cumplir los 70. Tasa de AVPP: años perdidos por cada 100.000 "
    "personas menores de 70 años.";

// The region, then its provinces.
[[nodiscard]] std::vector<Unit> regionAndProvinces(const Study& study);

// The rows of a list that a sex has, and last all causes together.
[[nodiscard]] std::vector<CauseRow> causeRowsAndTotal(const Study& study, std::string_view list, const SexChoice& sex);

// A row of the table without its cells: causes are plain, all causes a total.
[[nodiscard]] Row rowOf(const CauseRow& cause);

// Tells that a list's causes do not add up to all causes; empty where they do.
[[nodiscard]] std::vector<std::string> listNotes(const Study& study, std::string_view list);

}  // namespace study::pages

#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace study {

// A person's sex, as deaths and persons are counted.
enum class Sex { men, women };
inline constexpr std::size_t kSexes = 2;
inline constexpr std::array<Sex, kSexes> kBothSexes{Sex::men, Sex::women};

// A sex as the study publishes it; "Ambos sexos" is the sum of both.
struct SexChoice {
  std::string_view name;
  bool men;
  bool women;

  [[nodiscard]] bool includes(Sex sex) const { return sex == Sex::men ? men : women; }
};

inline constexpr std::array<SexChoice, 3> kSexChoices{
    {{"Ambos sexos", true, true}, {"Hombres", true, false}, {"Mujeres", false, true}}};

}  // namespace study

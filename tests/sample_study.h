#pragma once

#include <string>

// The sample study, which is made from the program's own source data and is too large for a golden transcript.
namespace scenarios {

// Whether VELDORIA_STUDY in the environment names its folder; without it the tests on it are left out.
[[nodiscard]] bool isSampleStudyNamed();

// Its folder. Throws when there is none.
[[nodiscard]] std::string sampleStudy();

// A visit to it: a province, a zone, and the zone in another year.
inline constexpr const char* kSampleScript = R"(start
tick
select Ficha Datos
select CmbProvincias #1
select CmbZonas "Arbejuelo Alto"
select FichaAños 2001
close
)";

}  // namespace scenarios

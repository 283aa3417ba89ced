#pragma once

#include <optional>
#include <string>

// The sample study, which is made from the program's own source data and is too large for a golden transcript.
namespace scenarios {

// Its folder, as VELDORIA_STUDY in the environment says; nothing without it. Throws when there is no such folder.
[[nodiscard]] std::optional<std::string> sampleStudy();

// A visit to it: a province, a zone, and the zone in another year.
inline constexpr const char* kSampleScript = R"(start
tick
select Ficha Datos
select CmbProvincias #1
select CmbZonas #0
select FichaAños 2001
close
)";

}  // namespace scenarios

#pragma once

#include <string>

namespace motor {

// A distance as a reader wants it: "3,417 km", "34,17 km", "341,7 km", "3.417 km", in one of the language's distance
// units with its Spanish abbreviation; "—" when it is no number. Throws EngineError for an unknown unit.
[[nodiscard]] std::string distanceText(double metres, const std::string& unit);

}  // namespace motor

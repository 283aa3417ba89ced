#pragma once

#include <string_view>

#include "study/plane.h"

namespace study {

// UTM zone 30 north on the European datum of 1950, in metres, as map statements name it.
inline constexpr std::string_view kCoordSys = R"(Earth Projection 8, 28, "m", -3, 0, 0.9996, 500000, 0)";

// The bounds of every table. Table files hold coordinates as whole numbers between their bounds, two thousand million
// steps across: the same bounds everywhere round shared borders alike, and with these a step is half a millimetre, so
// that centimetres stay exact.
inline constexpr Extent kTableBounds{0, 4'000'000, 1'000'000, 5'000'000};

}  // namespace study

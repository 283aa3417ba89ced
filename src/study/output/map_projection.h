#pragma once

#include <string>

#include "study/model/area.h"
#include "study/model/study.h"

namespace study {

// The plane that a study's maps lie in.
struct MapProjection {
  std::string coordSys;  // as map statements name it
  // The bounds of every table. Table files hold coordinates as whole numbers between their bounds, about two thousand
  // million steps across: the same bounds everywhere round shared borders alike. A step is half a millimetre, in a
  // region wider than a thousand kilometres more.
  Extent bounds;
};

// UTM on the geodetic system of 1984, of the study's zone, in metres.
[[nodiscard]] MapProjection mapProjection(const Study& study);

}  // namespace study

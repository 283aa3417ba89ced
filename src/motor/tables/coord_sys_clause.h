#pragma once

#include <string>

namespace motor {

// A CoordSys clause taken apart, with its Bounds and the word CoordSys left out.
struct CoordinateClause {
  enum class Kind { longLat, earth, plain };

  Kind kind = Kind::longLat;
  std::string unit;        // of a plain grid, "m"
  std::string projection;  // of an earth system, as the geodesy library reads it: "Earth Projection 8, 28, ..."
};

// Throws EngineError when the clause is not understood.
[[nodiscard]] CoordinateClause parseCoordSysClause(const std::string& clause);

}  // namespace motor

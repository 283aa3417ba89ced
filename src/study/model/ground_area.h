#pragma once

#include "study/model/area.h"

namespace study {

// The land of an area given in UTM on WGS 84, in square metres of the ellipsoid. On the map the same land is up to a
// thousandth smaller or, far from the zone's meridian, larger: each piece is divided by the square of the map's scale
// there, which on a transverse Mercator map grows with the distance from the meridian as the hyperbolic cosine does.
// Source: J. P. Snyder, "Map Projections - A Working Manual", U.S. Geological Survey Professional Paper 1395,
// Washington 1987, pp. 57-64. Seven degrees from the meridian the error is below 1 in a million.
[[nodiscard]] double groundSquareMetres(const Area& area, int utmZone);

}  // namespace study

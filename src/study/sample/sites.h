#pragma once

#include <vector>

#include "study/plane.h"
#include "study/random.h"
#include "study/sample/outline.h"

namespace study {

// A place around which people, and so smaller zones, crowd.
struct Settlement {
  Point place;
  double weight;  // how many times denser than the country at its middle
  double reach;   // metres
};

// Random points inside the outline, denser around the settlements.
[[nodiscard]] std::vector<Point> scatter(Random& random, const Outline& outline,
                                         const std::vector<Settlement>& settlements, std::size_t count);

// `count` sites spread evenly over the sample of points: S. Lloyd's method ("Least squares quantization in PCM", 1982).
[[nodiscard]] std::vector<Point> spreadSites(Random& random, const std::vector<Point>& sample, std::size_t count);

// Sites in a band outside the outline, about as far apart as those inside: their cells give the region's border the
// same uneven course as the borders within it.
[[nodiscard]] std::vector<Point> sitesAround(Random& random, const Outline& outline, const std::vector<Point>& inside);

}  // namespace study

#pragma once

#include <cstddef>
#include <vector>

#include "study/generator/outline.h"
#include "study/generator/plane.h"
#include "study/generator/random.h"

namespace study::generator {

// A place around which people, and so smaller zones, crowd.
struct Settlement {
  Point place;
  double weight;  // how many times denser than the country at its middle
  double reach;   // metres
};

// All points below lie on whole metres.

// Random points inside the outline: evenly over the country, and around the settlements as their weights say.
[[nodiscard]] std::vector<Point> scatter(Random& random, const Outline& outline,
                                         const std::vector<Settlement>& settlements, std::size_t count);

// A point at most that far away in x and in y, inside the outline.
[[nodiscard]] Point jittered(Random& random, Point p, double metres, const Outline& outline);

// `count` sites spread evenly over the sample of points, which are more: S. Lloyd's method ("Least squares
// quantization in PCM", 1982). No two sites are equal.
[[nodiscard]] std::vector<Point> spreadSites(Random& random, const std::vector<Point>& sample, std::size_t count);

// Moves points that equal others by metres, until all differ.
void makeDistinct(std::vector<Point>& points);

// Sites in a band outside the outline, `apart` metres from each other and from those inside, or a little more: their
// cells give the region's border the same uneven course as the borders within it.
[[nodiscard]] std::vector<Point> sitesAround(Random& random, const Outline& outline, const std::vector<Point>& inside,
                                             double apart);

}  // namespace study::generator

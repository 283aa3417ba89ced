#pragma once

#include <cstddef>
#include <vector>

#include "study/generator/outline.h"
#include "study/generator/plane.h"
#include "study/generator/random.h"
#include "study/generator/sites.h"

namespace study::generator {

// Where people crowd: a capital for each province, and towns between them.
struct Places {
  std::vector<Point> capitals;
  std::vector<Point> towns;
};

// `spacing` is the distance between the middles of neighbouring zones, in metres, if all were alike. Capitals come in
// no order.
[[nodiscard]] Places choosePlaces(Random& random, const Outline& outline, std::size_t provinces, std::size_t zones,
                                  double spacing);

[[nodiscard]] std::vector<Settlement> settlements(const Places& places, double spacing);

}  // namespace study::generator

#pragma once

#include <vector>

#include "motor/tables/geometry.h"

namespace figures {

// The rings of a region, each closed; none for other objects.
[[nodiscard]] inline std::vector<std::vector<motor::Point>> ringsOf(const motor::MapObject& object) {
  std::vector<std::vector<motor::Point>> rings;
  if (object.kind != motor::MapObject::Kind::region) return rings;
  for (std::size_t part = 0; part < object.partCount(); ++part) {
    rings.emplace_back(object.points.begin() + object.parts[part],
                       object.points.begin() + static_cast<std::ptrdiff_t>(object.partEnd(part)));
  }
  return rings;
}

}  // namespace figures

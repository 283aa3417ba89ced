#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "motor/drawing/density_theme.h"
#include "motor/tables/object_set.h"

namespace motor {

// Where the signs of themes lie on a set of objects, found once for each set.
class ObjectPlaces {
 public:
  // By object: its centroid, not a number for an object without points. Good until `dropUnused`.
  [[nodiscard]] const std::vector<Point>& centres(const std::shared_ptr<const ObjectSet>& set);
  // By object: its dots. They lie the same way every time. Only regions have any.
  [[nodiscard]] const std::vector<std::vector<Point>>& dots(const std::shared_ptr<const ObjectSet>& set,
                                                            const std::vector<std::uint32_t>& counts);
  // Forgets the places in sets that are gone.
  void dropUnused();

 private:
  struct Centres {
    std::weak_ptr<const ObjectSet> set;
    std::unique_ptr<const std::vector<Point>> points;
  };
  struct Dots {
    std::weak_ptr<const ObjectSet> set;
    std::vector<std::uint32_t> counts;
    std::unique_ptr<const std::vector<std::vector<Point>>> points;
  };
  std::vector<Centres> centres_;
  std::vector<Dots> dots_;
};

}  // namespace motor

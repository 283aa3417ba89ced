#pragma once

#include <memory>
#include <vector>

#include "motor/tables/geometry.h"

namespace figures {

// Regions as a map of mapnik's, held in memory, filled and with a thin border: the rival of a redraw.
class MapnikMap {
 public:
  // A picture of so many pixels, which shows `view`.
  MapnikMap(const std::vector<motor::ObjectPtr>& regions, const motor::Box& view, int width, int height);
  ~MapnikMap();
  MapnikMap(const MapnikMap&) = delete;
  MapnikMap& operator=(const MapnikMap&) = delete;

  // Paints the map on a picture of its own; how many of its pixels are not white.
  void paint();
  [[nodiscard]] std::size_t paintedPixels() const;

 private:
  struct Data;
  std::unique_ptr<Data> data_;
};

}  // namespace figures

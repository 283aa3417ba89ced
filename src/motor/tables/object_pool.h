#pragma once

#include <ogr_api.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "motor/language/value.h"
#include "motor/tables/geometry.h"
#include "motor/tables/object_style.h"

namespace motor {

// Turns the geometries of a table into objects, one for all rows whose geometry and style are the same.
class ObjectPool {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  // The number of the object for a geometry and its style string, from 0; kNone when it has no points. Curves become
  // lines; of a mixed collection the parts of the highest dimension are kept.
  std::uint32_t add(OGRGeometryH geometry, std::string_view style);

  // The objects by number. Leaves the pool empty.
  [[nodiscard]] std::vector<ObjectPtr> take();

 private:
  struct Entry {
    std::shared_ptr<MapObject> object;
    std::uint32_t style;
  };

  std::uint32_t styleNumber(std::string_view style);
  [[nodiscard]] bool isScratch(const Entry& entry, std::uint32_t style) const;
  std::uint32_t addScratch(std::uint32_t style);

  MapObject scratch_;  // the geometry at hand; its memory is used again
  std::vector<Entry> entries_;
  std::uint32_t last_ = kNone;
  std::unordered_multimap<std::uint64_t, std::uint32_t> entriesByHash_;
  std::vector<std::pair<std::string, ObjectStyle>> styles_;
  std::uint32_t lastStyle_ = kNone;
  std::unordered_map<std::string, std::uint32_t> styleNumbers_;
};

}  // namespace motor

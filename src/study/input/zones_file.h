#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "study/geometry/polygon.h"
#include "study/input/fault_log.h"

namespace study {

// A zone as the input's map has it, in metres of the study's projection, mended.
struct DrawnZone {
  std::string name;
  std::string province;
  Polygons polygons;
};

struct ZonesFile {
  std::string name;              // as messages call it; "zones" where there is none
  std::vector<DrawnZone> zones;  // none where the file cannot be read; none without a name
  int utmZone = 0;               // negative in the south
  std::optional<Point> middle;   // of the box around all zones: degrees of longitude and latitude
};

// The zones of the one file zones.gpkg, zones.geojson, zones.shp or zones.tab of a folder, transformed to UTM on
// WGS 84: to the given zone, or to that of the middle of the box around all zones. Faulty zones have no polygons;
// where the map lies far from the UTM zone or from where its coordinate system is used, there are no zones.
[[nodiscard]] ZonesFile readZones(const std::filesystem::path& folder, std::optional<int> utmZone, FaultLog& log);

}  // namespace study

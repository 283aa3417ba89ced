#include "study/geometry/division.h"

#include <map>
#include <utility>

#include "study/geometry/faces.h"

namespace study {

namespace {

std::vector<Overlap> overlapsOf(const Geos& geos, const std::vector<Face>& faces) {
  std::map<std::pair<std::size_t, std::size_t>, Overlap> found;
  for (const Face& face : faces) {
    if (face.sliver) continue;
    for (std::size_t i = 0; i < face.owners.size(); ++i) {
      for (std::size_t j = i + 1; j < face.owners.size(); ++j) {
        const std::pair pair(face.owners[i], face.owners[j]);
        const auto [entry, isNew] = found.try_emplace(pair, Overlap{pair.first, pair.second, 0, face.inside});
        entry->second.squareMetres += geos.area(*face.polygon);
      }
    }
  }
  std::vector<Overlap> overlaps;
  for (const auto& [pair, overlap] : found) overlaps.push_back(overlap);
  return overlaps;
}

// Faces have their common borders point for point, so that joining them only leaves these out.
Area joined(const Geos& geos, const std::vector<const Face*>& faces) {
  if (faces.empty()) return {};
  std::vector<Geos::Geometry> members;
  for (const Face* face : faces) members.push_back(geos.owned(GEOSGeom_clone_r(geos.context(), face->polygon.get())));
  const Geos::Geometry coverage = geos.collection(GEOS_GEOMETRYCOLLECTION, std::move(members));
  return areaOf(geos.polygons(*geos.owned(GEOSCoverageUnion_r(geos.context(), coverage.get()))));
}

}  // namespace

Division divide(const std::vector<Polygons>& zones, const std::vector<std::size_t>& provinceOf, std::size_t provinces) {
  const Geos geos;
  std::vector<Face> faces = facesOf(geos, zones);
  Division division;
  division.overlaps = overlapsOf(geos, faces);
  if (!division.overlaps.empty()) return division;
  closeGaps(geos, faces);

  std::vector<const Face*> ofRegion;
  std::vector<std::vector<const Face*>> ofProvince(provinces);
  std::vector<std::vector<const Face*>> ofZone(zones.size());
  for (const Face& face : faces) {
    if (face.owners.empty()) continue;
    const std::size_t zone = face.owners.front();
    ofZone[zone].push_back(&face);
    ofProvince[provinceOf[zone]].push_back(&face);
    ofRegion.push_back(&face);
  }
  for (const auto& own : ofZone) division.zones.push_back(joined(geos, own));
  for (const auto& own : ofProvince) division.provinces.push_back(joined(geos, own));
  division.region = joined(geos, ofRegion);
  return division;
}

}  // namespace study

#include "prepared_polygons.h"

#include "region_rings.h"

namespace figures {

PreparedPolygons::PreparedPolygons(const std::vector<motor::ObjectPtr>& regions)
    : context_(GEOS_init_r()), tree_(GEOSSTRtree_create_r(context_, 10)) {
  const Destroy destroy{context_};
  regions_.reserve(regions.size());
  for (const motor::ObjectPtr& region : regions) {
    std::vector<GEOSGeometry*> rings;
    for (const auto& points : ringsOf(*region)) rings.push_back(ring(points));
    Geometry geometry(rings.empty() ? GEOSGeom_createEmptyPolygon_r(context_)
                                    : GEOSGeom_createPolygon_r(context_, rings.front(), rings.data() + 1,
                                                               static_cast<unsigned>(rings.size() - 1)),
                      destroy);
    const GEOSPreparedGeometry* prepared = GEOSPrepare_r(context_, geometry.get());
    regions_.push_back({std::move(geometry), {prepared, destroy}});
  }
  for (Region& region : regions_) GEOSSTRtree_insert_r(context_, tree_, region.geometry.get(), &region);
}

PreparedPolygons::~PreparedPolygons() {
  GEOSSTRtree_destroy_r(context_, tree_);
  regions_.clear();
  GEOS_finish_r(context_);
}

GEOSGeometry* PreparedPolygons::ring(const std::vector<motor::Point>& points) const {
  GEOSCoordSequence* sequence = GEOSCoordSeq_create_r(context_, static_cast<unsigned>(points.size()), 2);
  for (unsigned i = 0; i < points.size(); ++i) GEOSCoordSeq_setXY_r(context_, sequence, i, points[i].x, points[i].y);
  return GEOSGeom_createLinearRing_r(context_, sequence);
}

PreparedPolygons::Geometry PreparedPolygons::point(motor::Point p) const {
  return {GEOSGeom_createPointFromXY_r(context_, p.x, p.y), Destroy{context_}};
}

bool PreparedPolygons::covers(std::size_t region, const GEOSGeometry& point) const {
  return GEOSPreparedIntersects_r(context_, regions_.at(region).prepared.get(), &point) == 1;
}

std::size_t PreparedPolygons::countAt(const GEOSGeometry& point) const {
  struct Search {
    GEOSContextHandle_t context;
    const GEOSGeometry& point;
    std::size_t found = 0;
  } search{context_, point};
  const auto visit = [](void* item, void* data) {
    auto& asked = *static_cast<Search*>(data);
    const auto& region = *static_cast<const Region*>(item);
    if (GEOSPreparedIntersects_r(asked.context, region.prepared.get(), &asked.point) == 1) ++asked.found;
  };
  GEOSSTRtree_query_r(context_, tree_, &point, visit, &search);
  return search.found;
}

}  // namespace figures

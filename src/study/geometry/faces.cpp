#include "study/geometry/faces.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <unordered_map>
#include <utility>

#include "study/geometry/division.h"

namespace study {

namespace {

// All zones by the boxes around them, each made ready for many questions.
class ZoneIndex {
 public:
  ZoneIndex(const Geos& geos, const std::vector<Polygons>& zones)
      : geos_(geos), tree_(GEOSSTRtree_create_r(geos.context(), 10), {geos.context()}) {
    zones_.reserve(zones.size());
    for (std::size_t i = 0; i < zones.size(); ++i) {
      Entry& entry =
          zones_.emplace_back(Entry{i, geos.geometry(zones[i]), {nullptr, PreparedDestroyer{geos.context()}}});
      entry.prepared.reset(GEOSPrepare_r(geos.context(), entry.geometry.get()));
      GEOSSTRtree_insert_r(geos.context(), tree_.get(), entry.geometry.get(), &entry);
    }
  }

  // The zones that hold a point, ascending.
  [[nodiscard]] std::vector<std::size_t> holding(const GEOSGeometry& point) const {
    std::vector<Entry*> near;
    GEOSSTRtree_query_r(
        geos_.context(), tree_.get(), &point,
        [](void* entry, void* list) { static_cast<std::vector<Entry*>*>(list)->push_back(static_cast<Entry*>(entry)); },
        &near);
    std::vector<std::size_t> holders;
    for (const Entry* entry : near) {
      if (GEOSPreparedContains_r(geos_.context(), entry->prepared.get(), &point) == 1) holders.push_back(entry->zone);
    }
    std::sort(holders.begin(), holders.end());
    return holders;
  }

 private:
  struct TreeDestroyer {
    GEOSContextHandle_t context;
    void operator()(GEOSSTRtree* tree) const { GEOSSTRtree_destroy_r(context, tree); }
  };
  struct PreparedDestroyer {
    GEOSContextHandle_t context;
    void operator()(const GEOSPreparedGeometry* prepared) const { GEOSPreparedGeom_destroy_r(context, prepared); }
  };
  struct Entry {
    std::size_t zone;
    Geos::Geometry geometry;
    std::unique_ptr<const GEOSPreparedGeometry, PreparedDestroyer> prepared;
  };

  const Geos& geos_;
  std::vector<Entry> zones_;
  std::unique_ptr<GEOSSTRtree, TreeDestroyer> tree_;
};

bool isSliver(const Geos& geos, const GEOSGeometry& polygon) {
  return 2 * geos.area(polygon) < kSliverWidth * geos.length(polygon);
}

// The same for both directions.
struct Segment {
  Point from;
  Point to;

  Segment(Point a, Point b) : from(a), to(b) {
    if (std::pair(b.x, b.y) < std::pair(a.x, a.y)) std::swap(from, to);
  }
  bool operator==(const Segment&) const = default;
  [[nodiscard]] double length() const { return std::hypot(to.x - from.x, to.y - from.y); }
};

struct SegmentHash {
  std::size_t operator()(const Segment& s) const {
    std::size_t hash = 0;
    for (const double v : {s.from.x, s.from.y, s.to.x, s.to.y}) hash = hash * 1000003 + std::hash<double>()(v);
    return hash;
  }
};

void forEachSegment(const Geos& geos, const Face& face, const std::function<void(const Segment&)>& action) {
  for (const Ring& ring : areaOf(geos.polygons(*face.polygon))) {
    for (std::size_t i = 0; i < ring.size(); ++i) action({ring[i], ring[(i + 1) % ring.size()]});
  }
}

}  // namespace

std::vector<Face> facesOf(const Geos& geos, const std::vector<Polygons>& zones) {
  std::vector<Geos::Geometry> lines;
  for (const Polygons& zone : zones) {
    for (const Polygon& piece : zone) {
      lines.push_back(geos.line(piece.outer));
      for (const Ring& hole : piece.holes) lines.push_back(geos.line(hole));
    }
  }
  const Geos::Geometry drawn = geos.collection(GEOS_MULTILINESTRING, std::move(lines));
  const Geos::Geometry cut = geos.owned(GEOSUnaryUnionPrec_r(geos.context(), drawn.get(), kGrid));
  const GEOSGeometry* only = cut.get();
  const Geos::Geometry polygons = geos.owned(GEOSPolygonize_r(geos.context(), &only, 1));

  const ZoneIndex index(geos, zones);
  std::vector<Face> faces;
  const int count = GEOSGetNumGeometries_r(geos.context(), polygons.get());
  for (int i = 0; i < count; ++i) {
    const GEOSGeometry* polygon = GEOSGetGeometryN_r(geos.context(), polygons.get(), i);
    const Geos::Geometry inside = geos.pointOn(*polygon);
    faces.push_back({geos.owned(GEOSGeom_clone_r(geos.context(), polygon)), index.holding(*inside), geos.point(*inside),
                     isSliver(geos, *polygon)});
  }
  return faces;
}

void closeGaps(const Geos& geos, std::vector<Face>& faces) {
  const auto isGap = [](const Face& face) { return face.owners.empty() && face.sliver; };
  std::unordered_map<Segment, Face*, SegmentHash> gapBorders;
  for (Face& face : faces) {
    if (isGap(face)) forEachSegment(geos, face, [&](const Segment& s) { gapBorders[s] = &face; });
  }
  if (gapBorders.empty()) return;

  std::map<std::size_t, std::map<std::size_t, double>> shared;  // by gap's place in `faces`, by zone
  for (const Face& face : faces) {
    if (face.owners.empty()) continue;
    forEachSegment(geos, face, [&](const Segment& s) {
      const auto gap = gapBorders.find(s);
      if (gap == gapBorders.end()) return;
      shared[static_cast<std::size_t>(gap->second - faces.data())][face.owners.front()] += s.length();
    });
  }
  for (const auto& [gap, lengths] : shared) {
    const auto longest = std::max_element(lengths.begin(), lengths.end(),
                                          [](const auto& a, const auto& b) { return a.second < b.second; });
    faces[gap].owners = {longest->first};
  }
}

}  // namespace study

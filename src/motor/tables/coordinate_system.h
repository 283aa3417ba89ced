#pragma once

#include <memory>
#include <string>
#include <vector>

#include "motor/tables/geometry.h"

namespace motor {

// A coordinate system, by value; comparing two tells whether points need no transformation between them.
class CoordinateSystem {
 public:
  // Longitude and latitude in degrees on WGS 84, the session's own system until told otherwise.
  CoordinateSystem();

  // From the text after `CoordSys` (or with it): "Earth Projection 8, 28, \"m\", -3, 0, 0.9996, 500000, 0", "NonEarth
  // Units \"m\" Bounds (...) (...)". Throws EngineError when it is not understood.
  [[nodiscard]] static CoordinateSystem fromClause(const std::string& clause);
  // From a definition in WKT, as table files give it; an empty one is a plain metre grid.
  [[nodiscard]] static CoordinateSystem fromWkt(const std::string& wkt);

  [[nodiscard]] bool isLongLat() const;
  // False for a plain grid that lies nowhere on the earth.
  [[nodiscard]] bool isEarth() const;
  // Metres per unit of the coordinates; meaningless for longitude and latitude.
  [[nodiscard]] double metresPerUnit() const;
  // The clause that names this system, without the word CoordSys, and its name.
  [[nodiscard]] const std::string& clause() const;
  [[nodiscard]] const std::string& name() const;
  [[nodiscard]] const std::string& wkt() const;

  bool operator==(const CoordinateSystem& other) const;

 private:
  struct Definition;
  friend class DefinitionCache;
  std::shared_ptr<const Definition> definition_;
};

// Turns points of one system into another. Points that have no image become NaN, as all do between a plain grid and the
// earth. Equal systems cost nothing. Used by the thread that made it.
class Transformation {
 public:
  Transformation(const CoordinateSystem& from, const CoordinateSystem& to);
  ~Transformation();
  Transformation(Transformation&&) noexcept;
  Transformation& operator=(Transformation&&) noexcept;

  [[nodiscard]] bool isIdentity() const;
  [[nodiscard]] Point operator()(Point p) const;
  void apply(std::vector<Point>& points) const;
  // The box around a box's transformed outline.
  [[nodiscard]] Box operator()(const Box& box) const;

 private:
  struct Implementation;
  std::unique_ptr<Implementation> implementation_;
};

// Metres in one of the language's distance units ("km", "m", "mi", "ft", "survey ft", "nmi", ...), without regard to
// case. Throws EngineError for another word.
[[nodiscard]] double metresPerDistanceUnit(const std::string& unit);

}  // namespace motor

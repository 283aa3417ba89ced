#include "motor/tables/coordinate_system.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

#include "motor/language/error.h"
#include "motor/tables/coord_sys_clause.h"
#include "motor/tables/coordinate_definition.h"
#include "motor/tables/gdal.h"
#include "motor/tables/ogr_errors.h"

namespace motor {
namespace {

constexpr const char* kLongLatClause = "Earth Projection 1, 104";
constexpr const char* kLongLatName = "Longitude / Latitude";
constexpr const char* kLongLatWkt =
    R"(GEOGCS["unnamed",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],PRIMEM["Greenwich",0],)"
    R"(UNIT["degree",0.0174532925199433,AUTHORITY["EPSG","9122"]],AXIS["Latitude",NORTH],AXIS["Longitude",EAST]])";

// "Transverse_Mercator" as a person reads it.
std::string nameOf(OGRSpatialReferenceH system) {
  if (gdal().OSRIsGeographic(system) != 0) return kLongLatName;
  const char* projection = gdal().OSRGetAttrValue(system, "PROJECTION", 0);
  std::string name = projection == nullptr ? "Non-Earth" : projection;
  std::replace(name.begin(), name.end(), '_', ' ');
  return name;
}

}  // namespace

// The definitions of the process, made once for each text they are asked for by; so many are kept.
class DefinitionCache {
 public:
  using DefinitionPtr = std::shared_ptr<const CoordinateSystem::Definition>;

  static DefinitionPtr fromClause(const std::string& clause) {
    return cached("c" + clause, [&](OGRSpatialReferenceH system) {
      const CoordinateClause parsed = parseCoordSysClause(clause);
      std::string text = kLongLatClause;
      if (parsed.kind == CoordinateClause::Kind::earth) text = parsed.projection;
      if (parsed.kind == CoordinateClause::Kind::plain) {
        static_cast<void>(metresPerDistanceUnit(parsed.unit));
        text = "NonEarth Units \"" + parsed.unit + "\"";
      }
      return gdal().OSRImportFromMICoordSys(system, text.c_str());
    });
  }

  static DefinitionPtr fromWkt(const std::string& wkt) {
    if (wkt.empty()) return fromClause("NonEarth Units \"m\"");
    return cached("w" + wkt, [&](OGRSpatialReferenceH system) {
      char* text = const_cast<char*>(wkt.c_str());  // the pointer moves on, the text is only read
      return gdal().OSRImportFromWkt(system, &text);
    });
  }

 private:
  static constexpr std::size_t kMostKept = 1000;

  template <typename Import>
  static DefinitionPtr cached(const std::string& text, Import import) {
    static std::mutex mutex;
    static std::map<std::string, DefinitionPtr> definitions;
    const std::scoped_lock lock(mutex);
    const auto found = definitions.find(text);
    if (found != definitions.end()) return found->second;
    const GdalSystem system(gdal().OSRNewSpatialReference(nullptr));
    const OgrErrors quiet;
    if (import(system.get()) != OGRERR_NONE) {
      throw EngineError("No se entiende el sistema de coordenadas «" + text.substr(1) + "»");
    }
    const DefinitionPtr made = define(system.get());
    if (definitions.size() >= kMostKept) definitions.clear();
    definitions.emplace(text, made);
    return made;
  }

  static std::shared_ptr<CoordinateSystem::Definition> define(OGRSpatialReferenceH system) {
    const Gdal& library = gdal();
    auto made = std::make_shared<CoordinateSystem::Definition>();
    char* text = nullptr;
    library.OSRExportToWkt(system, &text);
    made->wkt = takeGdalText(std::exchange(text, nullptr));
    library.OSRExportToMICoordSys(system, &text);
    made->clause = takeGdalText(text);
    made->name = nameOf(system);
    made->isLongLat = library.OSRIsGeographic(system) != 0;
    made->isEarth = library.OSRIsLocal(system) == 0;
    made->metresPerUnit = library.OSRGetLinearUnits(system, nullptr);
    return made;
  }
};

// Every session begins with this system, so it is written down here: to ask the library for it means opening its
// database.
CoordinateSystem::CoordinateSystem() {
  static const DefinitionCache::DefinitionPtr longLat =
      std::make_shared<const Definition>(Definition{.wkt = kLongLatWkt,
                                                    .clause = kLongLatClause,
                                                    .name = kLongLatName,
                                                    .isLongLat = true,
                                                    .isEarth = true,
                                                    .metresPerUnit = 1});
  definition_ = longLat;
}

CoordinateSystem CoordinateSystem::fromClause(const std::string& clause) {
  CoordinateSystem system;
  system.definition_ = DefinitionCache::fromClause(clause);
  return system;
}

CoordinateSystem CoordinateSystem::fromWkt(const std::string& wkt) {
  CoordinateSystem system;
  system.definition_ = DefinitionCache::fromWkt(wkt);
  return system;
}

bool CoordinateSystem::isLongLat() const { return definition_->isLongLat; }
bool CoordinateSystem::isEarth() const { return definition_->isEarth; }
double CoordinateSystem::metresPerUnit() const { return definition_->metresPerUnit; }
const std::string& CoordinateSystem::clause() const { return definition_->clause; }
const std::string& CoordinateSystem::name() const { return definition_->name; }
const std::string& CoordinateSystem::wkt() const { return definition_->wkt; }

bool CoordinateSystem::operator==(const CoordinateSystem& other) const {
  return definition_ == other.definition_ || definition_->key() == other.definition_->key();
}

}  // namespace motor

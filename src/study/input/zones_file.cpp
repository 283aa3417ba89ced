#include "study/input/zones_file.h"

#include <cpl_error.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

#include "study/input/input_text.h"
#include "study/input/projection.h"
#include "study/map_files/quiet_errors.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace study {

namespace {

struct Format {
  const char* extension;
  const char* driver;
};
constexpr std::array<Format, 4> kFormats{
    {{".gpkg", "GPKG"}, {".geojson", "GeoJSON"}, {".shp", "ESRI Shapefile"}, {".tab", "MapInfo File"}}};
constexpr const char* kNames = "zones.gpkg, zones.geojson, zones.shp, zones.tab";

void addNoLayer(const FileFaults& faults) {
  faults.add(FaultKind::zonesLayer, 0, "no layer of zones can be found in the file",
             "save the zones to it as a layer, in the format that its name tells");
}

// Some files without a layer fail without a word.
void addUnreadable(const FileFaults& faults) {
  const std::string reason = CPLGetLastErrorMsg();
  if (reason.empty()) {
    addNoLayer(faults);
  } else {
    faults.add(FaultKind::unreadableFile, 0, "the map cannot be read: " + inQuotes(reason),
               "save it again in the format that its name tells");
  }
}

// Geopackages call it a system of its own, "Undefined geographic SRS", that there is none.
bool isUnknown(const OGRSpatialReference* system) {
  if (system == nullptr || system->IsLocal() || system->IsEmpty()) return true;
  const char* name = system->GetName();
  return name != nullptr && std::string_view(name).starts_with("Undefined ");
}

const Format* formatOf(const std::string& fileName) {
  const auto format = std::find_if(kFormats.begin(), kFormats.end(), [&](const Format& f) {
    return text::equalsIgnoringCase(fileName, std::string("zones") + f.extension);
  });
  return format == kFormats.end() ? nullptr : &*format;
}

std::vector<std::string> candidates(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    const std::string name = text::fromPath(entry.path().filename());
    if (formatOf(name) != nullptr) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

// Reads the zones of an open file.
class Reader {
 public:
  Reader(const FileFaults& faults, std::optional<int> utmZone) : faults_(faults), utmZone_(utmZone) {}

  void read(GDALDataset& file, ZonesFile& zones) {
    layer_ = layerOf(file);
    if (layer_ == nullptr) return;
    if (layer_->GetFeatureCount() == 0) {
      faults_.add(FaultKind::noZones, 0, "the file holds no zone", "give each zone its polygon there");
      return;
    }
    const bool hasAttributes = findAttributes();
    if (!findProjection(zones) || !hasAttributes) return;
    std::size_t number = 0;
    layer_->ResetReading();
    CPLErrorReset();
    while (OGRFeatureUniquePtr feature{layer_->GetNextFeature()}) {
      readZone(*feature, ++number, zones);
      CPLErrorReset();
    }
    if (CPLGetLastErrorType() >= CE_Failure) addUnreadable(faults_);
  }

 private:
  // The only layer, or that of the name "zones".
  OGRLayer* layerOf(GDALDataset& file) const {
    const int count = file.GetLayerCount();
    if (count == 1) return file.GetLayer(0);
    for (int i = 0; i < count; ++i) {
      if (text::equalsIgnoringCase(file.GetLayer(i)->GetName(), "zones")) return file.GetLayer(i);
    }
    if (count == 0) {
      addNoLayer(faults_);
    } else {
      faults_.add(FaultKind::zonesLayer, 0, "the file has several layers, none of them named \"zones\"",
                  "name the layer of the zones \"zones\", or remove the others");
    }
    return nullptr;
  }

  bool findAttributes() {
    name_ = attribute("zone");
    province_ = attribute("province");
    return name_ >= 0 && province_ >= 0;
  }

  int attribute(const char* name) const {
    const int index = layer_->GetLayerDefn()->GetFieldIndex(name);  // without regard to case
    if (index < 0) {
      faults_.add(FaultKind::missingAttribute, 0, "the zones have no attribute " + inQuotes(name),
                  "add it, with the name of each zone's " + std::string(name));
    }
    return index;
  }

  bool findProjection(ZonesFile& zones) {
    const OGRSpatialReference* system = layer_->GetSpatialRef();
    if (isUnknown(system)) {
      faults_.add(FaultKind::noCoordinateSystem, 0, "the file does not tell its coordinate system",
                  "save it with one; a shapefile needs its .prj file");
      return false;
    }
    const OGREnvelope box = extentOfLayer();
    const Point middle{(box.MinX + box.MaxX) / 2, (box.MinY + box.MaxY) / 2};
    if (system->IsProjected() && isOfDegrees(box)) {
      faults_.add(FaultKind::wrongPlace, 0,
                  std::string("its coordinates are degrees, though it says that they are metres of ") +
                      inQuotes(system->GetName()),
                  "give the file the coordinate system of its coordinates");
      return false;
    }
    const std::optional<Point> degrees = degreesOf(*system, middle);
    if (degrees && !isNearby(*system, *degrees)) return false;
    zones.middle = degrees;
    if (degrees) {
      zones.utmZone = utmZone_.value_or(utmZoneOf(*degrees));
      projection_ = std::make_unique<Projection>(*system, zones.utmZone);
    }
    if (!projection_ || !projection_->exists()) {
      faults_.add(FaultKind::notProjectable, 0, "its coordinates cannot be transformed to UTM",
                  "check that the file has the coordinate system in which the zones were drawn");
      return false;
    }
    return true;
  }

  // Nothing where no zone has a polygon.
  OGREnvelope extentOfLayer() const {
    OGREnvelope box;
    if (layer_->GetExtent(&box, TRUE) == OGRERR_NONE) return box;
    box.MinX = box.MaxX = box.MinY = box.MaxY = 0;
    return box;
  }

  static bool isOfDegrees(const OGREnvelope& box) {
    return box.MaxX > box.MinX && box.MinX >= -360 && box.MaxX <= 360 && box.MinY >= -90 && box.MaxY <= 90;
  }

  // Whether the map lies where its system and the UTM zone are used: elsewhere areas and lengths are wrong.
  bool isNearby(const OGRSpatialReference& system, Point degrees) const {
    constexpr double kFarthest = 9;  // degrees from the zone's meridian
    const auto written = [](double number) { return std::to_string(std::lround(number)); };
    const std::string place = "the middle of the zones lies " + written(std::fabs(degrees.y)) + " degrees " +
                              (degrees.y < 0 ? "south" : "north") + " and " + written(std::fabs(degrees.x)) +
                              " degrees " + (degrees.x < 0 ? "west" : "east") + ", ";
    if (std::fabs(degrees.y) > 90) return true;  // of no place on earth: the zone that is there is told of by its name
    if (!isInUse(system, degrees)) {
      faults_.add(FaultKind::wrongPlace, 0,
                  place + "where its coordinate system " + inQuotes(system.GetName()) + " is not used",
                  "give the file the coordinate system of its coordinates, and let eastings or longitudes come first");
      return false;
    }
    if (!utmZone_ || degreesFromMeridian(degrees, *utmZone_) <= kFarthest) return true;
    faults_.add(
        FaultKind::wrongPlace, 0,
        place + "too far from UTM zone " + std::to_string(std::abs(*utmZone_)) + ", which the settings name",
        "correct \"utm_zone\" in study.toml, or leave it out; let eastings or longitudes come first in the map");
    return false;
  }

  // An attribute as text; none, with a fault, where it is empty or no UTF-8.
  std::optional<std::string> textOf(const OGRFeature& feature, int index, const char* what,
                                    const std::string& subject) const {
    const std::string value = feature.IsFieldSetAndNotNull(index) ? feature.GetFieldAsString(index) : "";
    if (value.empty()) {
      faults_.add(FaultKind::emptyText, 0, subject + " has no name for its " + what, "fill in the attribute");
      return std::nullopt;
    }
    if (firstMalformed(value)) {
      faults_.add(FaultKind::notUtf8, 0, subject + " has letters of an unknown encoding in its " + what,
                  "save the file again with the encoding UTF-8");
      return std::nullopt;
    }
    return text::compose(value);
  }

  void readZone(OGRFeature& feature, std::size_t number, ZonesFile& zones) const {
    const std::string ordinal = "the " + std::to_string(number) + ". feature";
    const std::optional<std::string> name = textOf(feature, name_, "zone", ordinal);
    const std::optional<std::string> province =
        textOf(feature, province_, "province", name ? "the zone " + inQuotes(*name) : ordinal);
    if (!name || !province) return;
    zones.zones.push_back({*name, *province, polygonsOf(feature, "the zone " + inQuotes(*name))});
  }

  Polygons polygonsOf(OGRFeature& feature, const std::string& subject) const {
    std::unique_ptr<OGRGeometry> geometry(feature.StealGeometry());
    if (geometry && OGR_GT_IsNonLinear(geometry->getGeometryType())) geometry.reset(geometry->getLinearGeometry());
    const OGRwkbGeometryType type = geometry ? wkbFlatten(geometry->getGeometryType()) : wkbNone;
    if ((type != wkbPolygon && type != wkbMultiPolygon) || geometry->IsEmpty()) {
      faults_.add(FaultKind::noPolygon, 0, subject + " has no polygon", "draw the zone's outline");
      return {};
    }
    if (!projection_->project(*geometry)) {
      faults_.add(FaultKind::notProjectable, 0, subject + " lies where UTM has no coordinates",
                  "check its outline and the file's coordinate system");
      return {};
    }
    geometry.reset(OGRGeometryFactory::forceToMultiPolygon(geometry.release()));
    Polygons polygons = mended(polygonsOf(*geometry->toMultiPolygon()));
    if (polygons.empty()) {
      faults_.add(FaultKind::invalidPolygon, 0, subject + " has an outline that encloses nothing", "draw it again");
    }
    return polygons;
  }

  static Polygons polygonsOf(OGRMultiPolygon& multi) {
    Polygons polygons;
    for (OGRPolygon* piece : multi) {
      Polygon& polygon = polygons.emplace_back();
      bool isOuter = true;
      for (OGRLinearRing* ring : *piece) {
        Ring& target = isOuter ? polygon.outer : polygon.holes.emplace_back();
        for (const OGRPoint& p : *ring) target.push_back({p.getX(), p.getY()});
        isOuter = false;
      }
    }
    return polygons;
  }

  FileFaults faults_;
  std::optional<int> utmZone_;
  OGRLayer* layer_ = nullptr;
  int name_ = -1;
  int province_ = -1;
  std::unique_ptr<Projection> projection_;
};

}  // namespace

ZonesFile readZones(const std::filesystem::path& folder, std::optional<int> utmZone, FaultLog& log) {
  const std::vector<std::string> names = candidates(folder);
  if (names.empty()) {
    log.add(FaultKind::missingFile,
            {"zones", 0, "the file of the zones is missing", "add one of " + std::string(kNames)});
    return {"zones", {}, 0, {}};
  }
  ZonesFile zones{names.front(), {}, 0, {}};
  const FileFaults faults(log, zones.name);
  if (names.size() > 1) {
    faults.add(FaultKind::severalZonesFiles, 0, "there are several files of zones: " + asList(names), "keep one");
    return zones;
  }
  GDALAllRegister();
  const QuietErrors quiet;
  const std::array<const char*, 2> drivers{formatOf(zones.name)->driver, nullptr};
  const GDALDatasetUniquePtr file(GDALDataset::Open(text::fromPath(folder / text::toPath(zones.name)).c_str(),
                                                    GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers.data()));
  if (file == nullptr) {
    addUnreadable(faults);
    return zones;
  }
  Reader(faults, utmZone).read(*file, zones);
  return zones;
}

}  // namespace study

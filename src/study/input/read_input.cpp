#include "study/input/read_input.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

#include "study/geometry/division.h"
#include "study/input/age_division.h"
#include "study/input/causes_file.h"
#include "study/input/counted_rows.h"
#include "study/input/deaths_file.h"
#include "study/input/fault_log.h"
#include "study/input/population_file.h"
#include "study/input/settings.h"
#include "study/input/standard_file.h"
#include "study/input/zone_order.h"
#include "study/input/zones_file.h"
#include "study/model/ground_area.h"
#include "text/file_text.h"

namespace study {

namespace {

std::string rounded(double number) { return std::to_string(std::lround(number)); }

// " around 40.05 N 3.15 W", so that a map in the wrong place is noticed.
std::string around(const std::optional<Point>& degrees) {
  if (!degrees) return {};
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), " around %.2f %c %.2f %c", std::fabs(degrees->y), degrees->y < 0 ? 'S' : 'N',
                std::fabs(degrees->x), degrees->x < 0 ? 'W' : 'E');
  return text.data();
}

class Reader {
 public:
  Reader(const std::filesystem::path& folder, const Progress& progress) : folder_(folder), progress_(progress) {}

  Study read() {
    tell("Reading the settings, the causes and the standard population");
    const Settings settings = readSettings(folder_, log_);
    study_.years = settings.years;
    study_.suppressBelow = settings.suppressBelow;
    study_.texts = settings.texts;
    study_.causes = readCauses(folder_, log_);
    const Standard standard = readStandard(folder_, settings, log_);

    tell("Reading the zones");
    ZonesFile file = readZones(folder_, settings.utmZone, log_);
    const std::string zonesFile = file.name;
    const std::string where = around(file.middle);
    study_.utmZone = file.utmZone;
    OrderedZones ordered = orderZones(std::move(file), log_);
    study_.provinces = std::move(ordered.provinces);
    study_.zones = std::move(ordered.zones);

    tell("Joining " + std::to_string(study_.zones.size()) + " zones" + where + " to provinces");
    joinZones(ordered.polygons, zonesFile);

    const CountedUnits units(study_.years, study_.zones, zonesFile);
    readCounts(units);
    study_.standard = standardFor(study_.ages, standard, settings, log_);
    log_.throwIfAny();
    return std::move(study_);
  }

 private:
  void tell(const std::string& step) const {
    if (progress_) progress_(step);
  }

  void readCounts(const CountedUnits& units) {
    tell("Reading the population");
    const PopulationRows population = readPopulation(folder_, units, log_);
    study_.ages = divideAges(population.ageGroups, {log_, kPopulationFile});
    const Counts none(study_.ages.size(), study_.causes.codes.size());
    study_.counts.assign(study_.years.size(), std::vector<Counts>(study_.zones.size(), none));
    if (!study_.ages.empty()) enterPopulation(population, units, study_, log_);
    tell("Reading the deaths");
    readDeaths(folder_, units, study_, log_);
  }

  void joinZones(const std::vector<Polygons>& polygons, const std::string& zonesFile) {
    if (polygons.empty()) return;
    std::vector<std::size_t> provinceOf;
    for (const Zone& zone : study_.zones) provinceOf.push_back(zone.province);
    Division division = divide(polygons, provinceOf, study_.provinces.size());
    const FileFaults faults(log_, zonesFile);
    for (const Overlap& overlap : division.overlaps) addOverlap(overlap, faults);
    for (std::size_t i = 0; i < division.zones.size(); ++i) {
      if (!division.zones[i].empty() || polygons[i].empty()) continue;
      faults.add(FaultKind::tooSmallZone, 0,
                 "the zone " + inQuotes(study_.zones[i].name) + " is no more than a sliver in its neighbours",
                 "draw its outline and theirs again");
    }
    checkAreas(division, faults);
    study_.zoneAreas = std::move(division.zones);
    study_.provinceAreas = std::move(division.provinces);
    study_.regionArea = std::move(division.region);
  }

  // No zone is as small as a house, no region as large as a continent: then the coordinates are no metres of the system
  // that the file names.
  void checkAreas(const Division& division, const FileFaults& faults) const {
    constexpr double kLeast = 1e4;
    constexpr double kMost = 1e13;
    if (log_.count(FaultKind::noPolygon) + log_.count(FaultKind::notProjectable) > 0 || division.region.empty()) return;
    const double region = groundSquareMetres(division.region, study_.utmZone);
    if (region >= kLeast && region <= kMost) return;
    std::array<char, 32> squareKilometres{};
    std::snprintf(squareKilometres.data(), squareKilometres.size(), "%.3g", region / 1e6);
    faults.add(FaultKind::wrongArea, 0,
               "the zones cover " + std::string(squareKilometres.data()) + " square kilometres together",
               "check that the file has the coordinate system in which the zones were drawn");
  }

  void addOverlap(const Overlap& overlap, const FileFaults& faults) const {
    faults.add(FaultKind::overlap, 0,
               "the zones " + inQuotes(study_.zones[overlap.first].name) + " and " +
                   inQuotes(study_.zones[overlap.second].name) + " overlap by " + rounded(overlap.squareMetres) +
                   " square metres, around " + rounded(overlap.at.x) + " " + rounded(overlap.at.y) + " in UTM zone " +
                   std::to_string(std::abs(study_.utmZone)),
               "draw their border once for both");
  }

  const std::filesystem::path& folder_;
  const Progress& progress_;
  FaultLog log_;
  Study study_;
};

}  // namespace

Study readInput(const std::filesystem::path& folder, const Progress& progress) {
  std::error_code error;
  if (!std::filesystem::is_directory(folder, error)) {
    const std::vector<Fault> fault{
        {text::fromPath(folder), 0, "there is no such folder", "give the folder that holds study.toml"}};
    throw InputFaults(fault, fault, 1);
  }
  return Reader(folder, progress).read();
}

}  // namespace study

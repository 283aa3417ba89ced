#include "study/input/zone_order.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "study/input/names.h"
#include "text/collation.h"

namespace study {

namespace {

void checkZones(const FileFaults& faults, std::vector<DrawnZone>& zones) {
  std::map<std::string, const DrawnZone*> seen;
  std::vector<bool> isDouble;
  for (const DrawnZone& zone : zones) {
    checkName(faults, "the zone", zone.name);
    const auto [other, isNew] = seen.try_emplace(folded(zone.name), &zone);
    isDouble.push_back(!isNew);
    if (isNew) continue;
    faults.add(FaultKind::doubleZone, 0,
               "the zones " + inQuotes(other->second->name) + " of " + inQuotes(other->second->province) + " and " +
                   inQuotes(zone.name) + " of " + inQuotes(zone.province) + " have one name",
               "name them apart, for the program finds zones by name alone; the parts of one zone belong into one "
               "feature");
  }
  std::size_t at = 0;
  std::erase_if(zones, [&](const DrawnZone&) { return isDouble[at++]; });
}

void checkProvinces(const FileFaults& faults, const std::set<std::string>& provinces) {
  std::map<std::string, std::string> seen;
  for (const std::string& province : provinces) {
    checkName(faults, "the province", province);
    if (folded(province) == folded(kRegion)) {
      faults.add(FaultKind::provinceLikeRegion, 0, "the province " + inQuotes(province) + " is named like the region",
                 "give it another name");
    }
    const auto [other, isNew] = seen.try_emplace(folded(province), province);
    if (isNew) continue;
    faults.add(FaultKind::provinceCase, 0,
               "the provinces " + inQuotes(other->second) + " and " + inQuotes(province) + " differ only in case",
               "spell them alike, or name them apart");
  }
}

// Equal only for equal names.
std::pair<std::string, std::string> orderOf(const std::string& name) { return {text::collationKey(name), name}; }

}  // namespace

OrderedZones orderZones(ZonesFile file, FaultLog& log) {
  const FileFaults faults(log, file.name);
  checkZones(faults, file.zones);
  std::set<std::string> names;
  for (const DrawnZone& zone : file.zones) names.insert(zone.province);
  checkProvinces(faults, names);

  OrderedZones ordered;
  ordered.provinces.assign(names.begin(), names.end());
  std::sort(ordered.provinces.begin(), ordered.provinces.end(),
            [](const std::string& a, const std::string& b) { return orderOf(a) < orderOf(b); });
  std::map<std::string, std::size_t> places;
  for (std::size_t i = 0; i < ordered.provinces.size(); ++i) places[ordered.provinces[i]] = i;

  const auto order = [&](const DrawnZone& zone) { return std::pair(places[zone.province], orderOf(zone.name)); };
  std::sort(file.zones.begin(), file.zones.end(),
            [&](const DrawnZone& a, const DrawnZone& b) { return order(a) < order(b); });
  for (DrawnZone& zone : file.zones) {
    ordered.zones.push_back({std::move(zone.name), places[zone.province]});
    ordered.polygons.push_back(std::move(zone.polygons));
  }
  return ordered;
}

}  // namespace study

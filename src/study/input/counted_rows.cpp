#include "study/input/counted_rows.h"

#include <algorithm>
#include <charconv>

#include "study/input/names.h"
#include "text/utf8.h"

namespace study {

CountedUnits::CountedUnits(std::vector<int> years, const std::vector<Zone>& zones, std::string zonesFile)
    : years_(std::move(years)), zones_(zones), zonesFile_(std::move(zonesFile)) {
  for (std::size_t i = 0; i < zones.size(); ++i) {
    places_.try_emplace(zones[i].name, i);
    foldedPlaces_.try_emplace(folded(zones[i].name), i);
  }
}

std::optional<std::size_t> CountedUnits::readYear(const CsvFile& file, std::string_view field) const {
  int year = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), year);
  if (error != std::errc() || end != field.data() + field.size()) {
    file.fault(FaultKind::notANumber, "the year " + inQuotes(field) + " is no number", "write it in digits");
    return std::nullopt;
  }
  const auto found = std::find(years_.begin(), years_.end(), year);
  if (found != years_.end()) return static_cast<std::size_t>(found - years_.begin());
  if (!years_.empty()) {
    file.fault(FaultKind::unknownYear, "the year " + std::to_string(year) + " is none of the settings' years",
               "correct it, remove the row, or add the year to \"years\" in study.toml");
  }
  return std::nullopt;
}

std::optional<std::size_t> CountedUnits::readZone(const CsvFile& file, std::string_view field) const {
  if (const auto found = places_.find(field); found != places_.end()) return found->second;
  if (const auto found = places_.find(text::compose(field)); found != places_.end()) return found->second;
  if (!zones_.empty()) addUnknownZone(file, field);
  return std::nullopt;
}

void CountedUnits::addUnknownZone(const CsvFile& file, std::string_view field) const {
  const auto alike = foldedPlaces_.find(folded(field));
  const std::string remedy = alike != foldedPlaces_.end()
                                 ? "write it " + inQuotes(zones_[alike->second].name) + " as there"
                                 : "correct it, or add the zone to " + zonesFile_;
  file.fault(FaultKind::unknownZone, "the zone " + inQuotes(field) + " is not in " + zonesFile_, remedy);
}

std::optional<Sex> readSex(const CsvFile& file, std::string_view field) {
  for (const Sex sex : kBothSexes) {
    if (field == kSexChoices[1 + static_cast<std::size_t>(sex)].name) return sex;
  }
  file.fault(FaultKind::unknownSex, "there is no sex " + inQuotes(field), "write \"Hombres\" or \"Mujeres\"");
  return std::nullopt;
}

std::optional<CountedGroup> readGroup(const CsvFile& file, const CountedUnits& units, std::string_view year,
                                      std::string_view zone, std::string_view sex) {
  const std::optional<std::size_t> yearPlace = units.readYear(file, year);
  const std::optional<std::size_t> zonePlace = units.readZone(file, zone);
  const std::optional<Sex> ofSex = readSex(file, sex);
  if (!yearPlace || !zonePlace || !ofSex) return std::nullopt;
  return CountedGroup{*yearPlace, *zonePlace, *ofSex};
}

void RowKeys::addDoubleRows(const FileFaults& faults) {
  std::sort(keys_.begin(), keys_.end());
  std::size_t first = 0;
  for (std::size_t i = 1; i < keys_.size(); ++i) {
    if (keys_[i].first != keys_[first].first) {
      first = i;
      continue;
    }
    faults.add(FaultKind::doubleRow, keys_[i].second,
               "the row gives the same as line " + std::to_string(keys_[first].second), "remove one of the two");
  }
}

bool Totals::add(const CsvFile& file, std::size_t year, long count) {
  long& sum = sums_[year];
  const bool fitted = sum <= kLargestTotal;
  sum += count;
  if (fitted && sum > kLargestTotal) {
    file.fault(FaultKind::tooLargeTotal,
               "up to here, a year's counts sum to more than " + std::to_string(kLargestTotal), "check the counts");
  }
  return sum <= kLargestTotal;
}

}  // namespace study

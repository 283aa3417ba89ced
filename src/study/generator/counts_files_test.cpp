#include "study/generator/counts_files.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <tuple>

#include "study/generator/ages.h"
#include "study/generator/cause_patterns.h"
#include "study/generator/mortality.h"
#include "study/generator/test_input.h"

namespace study::generator {
namespace {

// The European standard population of 1976, of 100,000 (J. Waterhouse et al., IARC Scientific Publications 15).
constexpr std::array<double, kAgeSpans> kStandard{1600, 6400, 7000, 7000, 7000, 7000, 7000, 7000, 7000, 7000,
                                                  7000, 7000, 6000, 5000, 4000, 3000, 2000, 1000, 1000};

using Key = std::tuple<std::string, std::string, std::string, std::string>;  // year, zone, sex, age

// The sample, read back.
class SampleCountsTest : public testing::Test {
 protected:
  struct Read {
    std::map<Key, long> persons;
    std::map<Key, long> deaths;
    std::map<std::pair<std::string, std::string>, long> bySexAndCause;
    std::size_t deathRows = 0;
  };

  static const Read& sample() {
    static const Read read = readSample();
    return read;
  }

  static Read readSample() {
    const TestInput input({});
    Read read;
    auto persons = rows(input.bytes("population.csv"));
    EXPECT_EQ(persons.front(), (std::vector<std::string>{"year", "zone", "sex", "age_group", "persons"}));
    for (std::size_t i = 1; i < persons.size(); ++i) {
      const auto& row = persons[i];
      const bool isNew = read.persons.emplace(Key{row[0], row[1], row[2], row[3]}, std::stol(row[4])).second;
      EXPECT_TRUE(isNew) << i;
    }
    auto deaths = rows(input.bytes("deaths.csv"));
    EXPECT_EQ(deaths.front(), (std::vector<std::string>{"year", "zone", "sex", "age_group", "cause", "count"}));
    for (std::size_t i = 1; i < deaths.size(); ++i) {
      const auto& row = deaths[i];
      read.deaths[{row[0], row[1], row[2], row[3]}] += std::stol(row[5]);
      read.bySexAndCause[{row[2], row[4]}] += std::stol(row[5]);
    }
    read.deathRows = deaths.size() - 1;
    return read;
  }

  // Over all zones.
  static double sum(const std::map<Key, long>& numbers, const std::string& year, std::string_view sex,
                    std::string_view age) {
    double result = 0;
    for (const auto& [key, number] : numbers) {
      if (std::get<0>(key) == year && (sex.empty() || std::get<2>(key) == sex) &&
          (age.empty() || std::get<3>(key) == age)) {
        result += static_cast<double>(number);
      }
    }
    return result;
  }

  static double standardised(const std::string& year, std::string_view sex) {
    double rate = 0;
    for (std::size_t age = 0; age < kAgeSpans; ++age) {
      rate += kStandard[age] * sum(sample().deaths, year, sex, kAges[age].name) /
              sum(sample().persons, year, sex, kAges[age].name);
    }
    return rate;
  }
};

const std::string kSampleYears[] = {"1999", "2000", "2001", "2002"};

TEST_F(SampleCountsTest, PersonsOfEveryYearZoneSexAndAgeAreThere) {
  std::set<std::string> zones;
  for (const auto& [key, number] : sample().persons) {
    zones.insert(std::get<1>(key));
    EXPECT_GE(number, 0);
  }
  EXPECT_EQ(zones.size(), 120u);
  for (const std::string& year : kSampleYears) {
    for (const std::string& zone : zones) {
      for (const Sex sex : kBothSexes) {
        for (const AgeSpan& age : kAges) {
          EXPECT_TRUE(sample().persons.contains({year, zone, std::string(nameOf(sex)), std::string(age.name)}));
        }
      }
    }
  }
  EXPECT_EQ(sample().persons.size(), 4u * 120 * 2 * 19);
}

TEST_F(SampleCountsTest, NobodyDiesWhereNobodyLives) {
  for (const auto& [key, number] : sample().deaths) {
    EXPECT_GT(number, 0);
    const auto living = sample().persons.find(key);
    ASSERT_NE(living, sample().persons.end());
    EXPECT_GT(living->second, 0);
  }
}

TEST_F(SampleCountsTest, RegionLooksLikeAnAgeingRegion) {
  for (const std::string& year : kSampleYears) {
    const double persons = sum(sample().persons, year, {}, {});
    EXPECT_GT(persons, 1'500'000);
    EXPECT_LT(persons, 2'500'000);
    const double crude = 100'000 * sum(sample().deaths, year, {}, {}) / persons;
    EXPECT_GT(crude, 850);
    EXPECT_LT(crude, 950);
    EXPECT_GT(standardised(year, "Hombres"), 750);
    EXPECT_LT(standardised(year, "Hombres"), 900);
    EXPECT_GT(standardised(year, "Mujeres"), 400);
    EXPECT_LT(standardised(year, "Mujeres"), 500);
    const double infants = 1'000 * sum(sample().deaths, year, {}, "0") / sum(sample().persons, year, {}, "0");
    EXPECT_GT(infants, 2.5);
    EXPECT_LT(infants, 5.5);
  }
  EXPECT_LT(standardised("2002", "Hombres"), standardised("1999", "Hombres"));
}

TEST_F(SampleCountsTest, ZonesAreOfAllSizes) {
  std::map<std::string, long> sizes;
  std::map<std::string, long> deaths;
  for (const auto& [key, number] : sample().persons) {
    if (std::get<0>(key) == "1999") sizes[std::get<1>(key)] += number;
  }
  for (const auto& [key, number] : sample().deaths) {
    if (std::get<0>(key) == "1999") deaths[std::get<1>(key)] += number;
  }
  long small = 0;
  long large = 0;
  long fewDeaths = 0;
  for (const auto& [zone, size] : sizes) {
    EXPECT_GT(size, 200) << zone;
    EXPECT_LT(size, 70'000) << zone;
    small += size < 1'000 ? 1 : 0;
    large += size > 20'000 ? 1 : 0;
    fewDeaths += deaths[zone] < 20 ? 1 : 0;
  }
  EXPECT_GE(small, 3);
  EXPECT_GE(large, 10);
  EXPECT_GE(fewDeaths, 5);
}

TEST_F(SampleCountsTest, NoSexDiesOfTheOthersCauses) {
  std::map<std::string, std::size_t> index;
  for (std::size_t i = 0; i < causePatterns().size(); ++i) index[std::string(causePatterns()[i].code)] = i;
  for (const auto& [key, number] : sample().bySexAndCause) {
    const CausePattern& pattern = causePatterns()[index.at(key.second)];
    const MortalityCurve& curve = key.first == "Hombres" ? pattern.men : pattern.women;
    EXPECT_GT(curve.at70 + curve.infant + curve.young + curve.adult, 0) << key.first << " " << key.second;
  }
  const auto& counts = sample().bySexAndCause;
  EXPECT_FALSE(counts.contains({"Mujeres", "C61"}));
  EXPECT_FALSE(counts.contains({"Hombres", "C51-C58"}));
  EXPECT_FALSE(counts.contains({"Hombres", "O00-O99"}));
  EXPECT_GT(counts.at({"Hombres", "C61"}), 1'000);
  // Breast tumours of men are rare, but not unheard of.
  EXPECT_GT(counts.at({"Hombres", "C50"}), 0);
  EXPECT_GT(counts.at({"Mujeres", "C50"}), 50 * counts.at({"Hombres", "C50"}));
}

TEST_F(SampleCountsTest, IsOfTheSizeOfARealRegistersCounts) {
  EXPECT_GT(sample().deathRows, 20'000u);
  EXPECT_LT(sample().deathRows, 80'000u);
}

std::size_t causeOf(std::string_view code) {
  std::size_t i = 0;
  while (causePatterns()[i].code != code) ++i;
  return i;
}

TEST(GeneratedMortality, GrowsWithAgeByAConstantFactor) {
  // Diabetes of men has no part of its own at these ages: e^(0.095 * 5) from group to group.
  const std::size_t diabetes = causeOf("E10-E14");
  EXPECT_NEAR(baseMortality(diabetes, Sex::men, 16) / baseMortality(diabetes, Sex::men, 15), 1.608, 0.001);
  const std::size_t perinatal = causeOf("P00-P96");
  EXPECT_GT(baseMortality(perinatal, Sex::men, 0), 50 * baseMortality(perinatal, Sex::men, 5));
  const std::size_t traffic = causeOf("V01-V89");
  EXPECT_GT(baseMortality(traffic, Sex::men, 5), baseMortality(traffic, Sex::men, 10));
  EXPECT_EQ(baseMortality(causeOf("C61"), Sex::women, 18), 0);
}

TEST(GeneratedMortality, ChangesOverTheYears) {
  EXPECT_EQ(trend(causeOf("C16"), 1999), 1);
  EXPECT_NEAR(trend(causeOf("C16"), 2001), 0.97 * 0.97, 1e-12);
}

TEST(GeneratedMortality, NeighboursAreAlike) {
  const Region region = makeRegion({});
  Random random(1);
  const MortalityMap map(random, region);
  // Within a cause the nearest zones differ less than any two.
  double near = 0;
  double any = 0;
  std::size_t pairs = 0;
  for (std::size_t a = 0; a < region.zones.size(); ++a) {
    std::size_t nearest = a == 0 ? 1 : 0;
    for (std::size_t b = 0; b < region.zones.size(); ++b) {
      if (b == a || region.zones[b].settled != region.zones[a].settled) continue;
      const Point site = region.zones[a].site;
      if (squaredDistance(site, region.zones[b].site) < squaredDistance(site, region.zones[nearest].site)) nearest = b;
    }
    if (region.zones[nearest].settled != region.zones[a].settled) continue;
    for (std::size_t cause = 0; cause < causePatterns().size(); ++cause) {
      const double own = map.factor(cause, a);
      near += std::abs(own - map.factor(cause, nearest));
      any += std::abs(own - map.factor(cause, (a + 61) % region.zones.size()));
      ++pairs;
    }
  }
  EXPECT_GT(pairs, 1'000u);
  EXPECT_LT(near, 0.7 * any);
}

}  // namespace
}  // namespace study::generator

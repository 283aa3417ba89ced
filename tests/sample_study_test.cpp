#include "sample_study.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "scenario.h"

// A visit to the sample study. Its figures are the study's own; what the program makes of them is told by the
// transcript's structure.
namespace {

using scenarios::Block;
using scenarios::Lines;

std::ptrdiff_t count(const Lines& lines, const std::string& beginning) {
  return std::ranges::count_if(lines, [&](const std::string& line) { return line.starts_with(beginning); });
}

// The texts of the tree's roots, in order.
Lines roots(const Lines& lines) {
  Lines texts;
  for (const std::string& line : lines) {
    const std::size_t quote = line.find('"');
    const std::size_t end = line.find('"', quote + 1);
    if (!line.starts_with("node ") || line.substr(0, quote).find('/') != std::string::npos) continue;
    texts.push_back(line.substr(quote + 1, end - quote - 1));
  }
  return texts;
}

class SampleStudy : public ::testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    scenarios::Run run(scenarios::sampleStudy());
    run.replay().run(scenarios::kSampleScript);
    for (const Block& block : scenarios::blocksOf(run.transcript())) blocks_[block.script] = block.lines;
    all_ = run.transcript();
  }
  // Each row of a walk gives one value, and moves the cursor on once.
  void expectWholeTree(const Lines& lines, std::size_t units) {
    EXPECT_EQ(roots(lines).size(), units + 1);
    EXPECT_EQ(count(lines, "nodeset "), static_cast<std::ptrdiff_t>(units)) << "all but the year are opened";
    EXPECT_GT(count(lines, "eval Formatnumber$"), static_cast<std::ptrdiff_t>(units) * 20);
    EXPECT_EQ(count(lines, "do Fetch next from selection"), count(lines, "eval Formatnumber$"));
  }

  std::map<std::string, Lines> blocks_;
  Lines all_;
};

TEST_P(SampleStudy, NothingFails) {
  EXPECT_EQ(count(all_, "error "), 0);
  EXPECT_EQ(count(all_, "msgbox "), 0);
  EXPECT_EQ(count(all_, "create "), 3);
  EXPECT_EQ(count(all_, "release "), 3);
  EXPECT_EQ(count(all_, "do run application "), 3);
}

TEST_P(SampleStudy, ListsHoldEachProvinceAndZoneOnce) {
  const auto added = [](const Lines& lines, const std::string& list) {
    Lines items;
    std::ranges::copy_if(lines, std::back_inserter(items),
                         [&](const std::string& line) { return line.starts_with("add " + list + " "); });
    return items;
  };
  const Lines provinces = added(blocks_.at("> select Ficha Datos"), "CmbProvincias");
  const Lines zones = added(blocks_.at("> select Ficha Datos"), "CmbZonas");
  const Lines zonesOfOne = added(blocks_.at("> select CmbProvincias #1"), "CmbZonas");
  EXPECT_GT(provinces.size(), 1U);
  EXPECT_EQ(std::set(provinces.begin(), provinces.end()).size(), provinces.size());
  EXPECT_EQ(std::set(zones.begin(), zones.end()).size(), zones.size());
  EXPECT_GT(zonesOfOne.size(), 1U);
  EXPECT_LT(zonesOfOne.size(), zones.size());
  for (const std::string& zone : zonesOfOne) EXPECT_TRUE(std::ranges::count(zones, zone) == 1) << zone;
}

TEST_P(SampleStudy, QueriesListTheUnitAndThoseAboveIt) {
  const Lines& province = blocks_.at("> select CmbProvincias #1");
  const Lines& zone = blocks_.at("> select CmbZonas \"Arbejuelo Alto\"");
  const Lines& year = blocks_.at("> select FichaAños 2001");
  expectWholeTree(province, 2);
  expectWholeTree(zone, 3);
  expectWholeTree(year, 3);
  const Lines ofProvince = roots(province);
  const Lines ofZone = roots(zone);
  EXPECT_EQ(ofProvince, (Lines{"1999", ofProvince.at(1), "Veldoria"}));
  EXPECT_EQ(ofZone, (Lines{"1999", ofZone.at(1), ofProvince.at(1), "Veldoria"}));
  EXPECT_EQ(roots(year), (Lines{"2001", ofZone.at(1), ofProvince.at(1), "Veldoria"}));
}

INSTANTIATE_TEST_SUITE_P(IfMade, SampleStudy,
                         ::testing::ValuesIn(std::vector<bool>(scenarios::isSampleStudyNamed() ? 1 : 0)));
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleStudy);

}  // namespace

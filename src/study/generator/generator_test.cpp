#include "study/generator/generator.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "study/generator/test_input.h"
#include "study/model/study_error.h"

namespace study::generator {
namespace {

GeneratorSettings small() {
  GeneratorSettings settings;
  settings.provinces = 3;
  settings.zones = 14;
  settings.vertices = 40;
  settings.years = {2000, 2001};
  return settings;
}

// FNV-1a (G. Fowler, L. C. Noll, K.-P. Vo).
std::uint64_t hash(const std::string& bytes) {
  std::uint64_t value = 0xCBF29CE484222325u;
  for (const char c : bytes) value = (value ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  return value;
}

TEST(Generator, SameSettingsSameBytes) {
  const TestInput first(small());
  const TestInput second(small());
  for (const char* file : kInputFiles) {
    EXPECT_FALSE(first.bytes(file).empty()) << file;
    EXPECT_EQ(first.bytes(file), second.bytes(file)) << file;
  }
}

// What one machine and compiler made: others have to make the same. To be replaced when other bytes are meant.
TEST(Generator, SameBytesOnEveryMachine) {
  const TestInput input(small());
  EXPECT_EQ(hash(input.bytes("zones.geojson")), 1874338147847572560u);
  EXPECT_EQ(hash(input.bytes("population.csv")), 15661586960241334644u);
  EXPECT_EQ(hash(input.bytes("deaths.csv")), 12649088932201757193u);
}

TEST(Generator, OtherSeedOtherRegion) {
  GeneratorSettings other = small();
  other.seed = 2;
  const TestInput first(small());
  const TestInput second(other);
  for (const char* file : {"deaths.csv", "population.csv", "zones.geojson"}) {
    EXPECT_NE(first.bytes(file), second.bytes(file)) << file;
  }
}

TEST(Generator, YearsDoNotDependOnEachOther) {
  GeneratorSettings one = small();
  one.years = {2001};
  const TestInput two(small());
  const TestInput alone(one);
  for (const char* file : {"deaths.csv", "population.csv"}) {
    const std::string both = two.bytes(file);
    const std::string own = alone.bytes(file);
    const std::string ofYear = own.substr(own.find('\n'));
    ASSERT_GT(ofYear.size(), 1'000u);
    EXPECT_EQ(both.substr(both.size() - ofYear.size()), ofYear) << file;
  }
}

TEST(Generator, SettingsNameRegionYearsAndFiction) {
  const TestInput input(small());
  const std::string settings = input.bytes("study.toml");
  EXPECT_NE(settings.find("region = \"Veldoria\"\n"), settings.npos);
  EXPECT_NE(settings.find("years = [2000, 2001]\n"), settings.npos);
  EXPECT_NE(settings.find("standard = \"europea 1976\"\n"), settings.npos);
  EXPECT_NE(settings.find("Veldoria es una región ficticia."), settings.npos);
}

TEST(Generator, LeavesInputThatIsThereAlone) {
  const TestInput input(small());
  const std::string before = input.bytes("deaths.csv");
  EXPECT_THROW(generateInput(small(), input.path(), {}), StudyError);
  EXPECT_EQ(input.bytes("deaths.csv"), before);
}

TEST(Generator, TellsWhereItCannotWrite) {
  const TestInput input(small());
  const auto inFile = input.path() / "deaths.csv" / "folder";
  try {
    generateInput(small(), inFile, {});
    FAIL();
  } catch (const StudyError& error) {
    EXPECT_NE(std::string(error.what()).find("deaths.csv"), std::string::npos) << error.what();
  }
}

TEST(Generator, TellsItsSteps) {
  const TestInput input(small());
  std::vector<std::string> steps;
  generateInput(small(), input.path() / "again", [&](const std::string& step) { steps.push_back(step); });
  EXPECT_EQ(steps.size(), 3u);
}

TEST(GeneratorSettings, OutOfRangeAreNamed) {
  struct Case {
    const char* named;
    void (*change)(GeneratorSettings&);
  };
  const Case cases[] = {
      {"provinces", [](GeneratorSettings& s) { s.provinces = 0; }},
      {"provinces", [](GeneratorSettings& s) { s.provinces = 201; }},
      {"zones", [](GeneratorSettings& s) { s.zones = s.provinces - 1; }},
      {"zones", [](GeneratorSettings& s) { s.zones = 20'001; }},
      {"vertices", [](GeneratorSettings& s) { s.vertices = 19; }},
      {"vertices", [](GeneratorSettings& s) { s.vertices = 2'001; }},
      {"years", [](GeneratorSettings& s) { s.years.clear(); }},
      {"years",
       [](GeneratorSettings& s) {
         s.years = {2001, 2000};
       }},
      {"years",
       [](GeneratorSettings& s) {
         s.years = {2001, 2001};
       }},
      {"1998",
       [](GeneratorSettings& s) {
         s.years = {1998, 1999};
       }},
  };
  EXPECT_NO_THROW(check(GeneratorSettings{}));
  for (const Case& c : cases) {
    GeneratorSettings settings;
    c.change(settings);
    try {
      check(settings);
      ADD_FAILURE() << c.named;
    } catch (const StudyError& error) {
      EXPECT_NE(std::string(error.what()).find(c.named), std::string::npos) << error.what();
    }
  }
}

}  // namespace
}  // namespace study::generator

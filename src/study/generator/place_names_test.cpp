#include "study/generator/place_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "text/collation.h"
#include "text/utf8.h"

namespace study::generator {
namespace {

std::vector<std::string> allNames(std::size_t provinces, std::size_t places) {
  std::vector<std::string> names = provinceNames(provinces);
  const std::vector<std::string> others = placeNames(places, names);
  names.insert(names.end(), others.begin(), others.end());
  names.emplace_back("Veldoria");
  return names;
}

TEST(PlaceNames, AreAsManyAsAskedForAndAllDiffer) {
  const std::vector<std::string> names = allNames(200, 20'000);
  EXPECT_EQ(names.size(), 20'201u);
  std::set<std::string> bare;
  for (const std::string& name : names)
    EXPECT_TRUE(bare.insert(text::lower(text::withoutAccents(name))).second) << name;
}

TEST(PlaceNames, CanBeNamesOfFoldersAndStandInStatements) {
  for (const std::string& name : allNames(200, 20'000)) {
    EXPECT_EQ(name.find_first_of("\"%_\\/:*?<>|,;.\n"), std::string::npos) << name;
    EXPECT_EQ(text::trim(name), name);
    EXPECT_EQ(text::compose(name), name);
    EXPECT_LE(text::length(name), 60u);
    EXPECT_GE(text::length(name), 4u);
    // Every letter is in the Windows character set of western Europe.
    for (const char32_t c : text::decode(name)) EXPECT_LT(c, 0x100u) << name;
  }
}

TEST(PlaceNames, TakenOnesAreNotUsed) {
  const std::vector<std::string> names = placeNames(50, {"ALMADREL", "Azarbéla"});
  EXPECT_EQ(std::count(names.begin(), names.end(), "Almadrel"), 0);
  EXPECT_EQ(std::count(names.begin(), names.end(), "Azarbela"), 0);
  EXPECT_EQ(std::count(names.begin(), names.end(), "Aldeumbría"), 1);
}

TEST(PlaceNames, ProvincesStandInSpanishOrder) {
  for (const std::size_t count : {1u, 8u, 50u, 200u}) {
    const std::vector<std::string> names = provinceNames(count);
    EXPECT_EQ(names.size(), count);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end(), text::CollationLess()));
  }
  const std::vector<std::string> eight = provinceNames(8);
  EXPECT_EQ(eight.front(), "Ástira");
  // Other than in the order of bytes.
  EXPECT_FALSE(std::is_sorted(eight.begin(), eight.end()));
}

}  // namespace
}  // namespace study::generator

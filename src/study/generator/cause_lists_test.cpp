#include "study/generator/cause_lists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "study/generator/cause_patterns.h"
#include "study/generator/test_input.h"
#include "study/model/causes.h"
#include "study/model/indicators.h"

namespace study::generator {
namespace {

bool canDie(const MortalityCurve& curve) {
  return curve.at70 + curve.infant + curve.child + curve.young + curve.adult > 0;
}

TEST(CauseLists, CountedCausesHaveCodesInOrderWithoutBlanks) {
  const auto patterns = causePatterns();
  EXPECT_GE(patterns.size(), 24u);
  for (std::size_t i = 0; i < patterns.size(); ++i) {
    EXPECT_EQ(patterns[i].code.find_first_of(" ,;\""), std::string_view::npos) << patterns[i].code;
    if (i > 0) {
      EXPECT_LT(patterns[i - 1].code, patterns[i].code);
    }
  }
}

TEST(CauseLists, BroadGroupsShareOutAllCauses) {
  std::map<std::string, int> uses;
  for (const ListedCause& cause : listedCauses()) {
    if (cause.list != kBroadGroups) continue;
    for (const std::string& code : parts(cause.sums, ' ')) ++uses[code];
  }
  EXPECT_EQ(uses.size(), causePatterns().size());
  for (const CausePattern& pattern : causePatterns()) EXPECT_EQ(uses[std::string(pattern.code)], 1) << pattern.code;
}

TEST(CauseLists, ReducedListIsThatOfTheThematicMaps) {
  std::vector<std::string_view> names;
  std::set<std::string> codes;
  for (const CausePattern& pattern : causePatterns()) codes.emplace(pattern.code);
  for (const ListedCause& cause : listedCauses()) {
    if (cause.list != kReducedList) continue;
    names.push_back(cause.name);
    for (const std::string& code : parts(cause.sums, ' ')) EXPECT_TRUE(codes.contains(code)) << code;
  }
  EXPECT_TRUE(std::equal(names.begin(), names.end(), kThematicCauses.begin(), kThematicCauses.end()));
}

TEST(CauseLists, SexIsOfThoseWhoCanDieOfIt) {
  std::map<std::string, const CausePattern*> patterns;
  for (const CausePattern& pattern : causePatterns()) patterns[std::string(pattern.code)] = &pattern;
  for (const ListedCause& cause : listedCauses()) {
    bool men = false;
    bool women = false;
    for (const std::string& code : parts(cause.sums, ' ')) {
      men = men || canDie(patterns.at(code)->men);
      women = women || canDie(patterns.at(code)->women);
    }
    const auto expected = std::find_if(kSexChoices.begin(), kSexChoices.end(), [&](const SexChoice& choice) {
      return choice.men == men && choice.women == women;
    });
    EXPECT_EQ(cause.sex, expected->name) << cause.name;
  }
}

TEST(CauseLists, CodesAndNamesDiffer) {
  std::set<std::string> codes;
  std::set<std::pair<std::string_view, std::string_view>> names;
  for (const ListedCause& cause : listedCauses()) {
    EXPECT_TRUE(codes.insert(cause.code).second) << cause.code;
    EXPECT_TRUE(names.insert({cause.list, cause.name}).second) << cause.name;
    EXPECT_EQ(cause.name.find('"'), std::string_view::npos);
  }
}

}  // namespace
}  // namespace study::generator

#include "shrink.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace monkey {
namespace {

Script lettersTo(char last) {
  Script script;
  for (char c = 'a'; c <= last; ++c) script.emplace_back(1, c);
  return script;
}

// Whether the script has these lines, in this order.
bool holds(const Script& script, const Script& lines) {
  auto at = script.begin();
  for (const std::string& line : lines) {
    at = std::find(at, script.end(), line);
    if (at == script.end()) return false;
    ++at;
  }
  return true;
}

TEST(Shrink, LeavesTheLinesThatFail) {
  for (const Script& culprits : {Script{"a"}, Script{"z"}, Script{"c", "d"}, Script{"a", "m", "z"}, Script{}}) {
    EXPECT_EQ(shrunk(lettersTo('z'), [&](const Script& script) { return holds(script, culprits); }), culprits);
  }
  EXPECT_EQ(shrunk(Script{}, [](const Script&) { return true; }), Script{});
}

// A line that another one needs goes only together with it.
TEST(Shrink, GoesOnUntilNoLineCanBeDropped) {
  const auto fails = [](const Script& script) {
    const bool hasA = holds(script, {"a"});
    const bool hasB = holds(script, {"b"});
    return holds(script, {"z"}) && (hasA || !hasB);
  };
  EXPECT_EQ(shrunk(lettersTo('z'), fails), Script{"z"});
}

TEST(Shrink, TriesFewScripts) {
  int tried = 0;
  Script script(1000, "x");
  script[700] = "y";
  const Script left = shrunk(script, [&](const Script& candidate) {
    ++tried;
    return holds(candidate, {"y"});
  });
  EXPECT_EQ(left, Script{"y"});
  EXPECT_LT(tried, 100);
}

}  // namespace
}  // namespace monkey

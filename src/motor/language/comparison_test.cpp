#include "motor/language/comparison.h"

#include <gtest/gtest.h>

#include "motor/language/like_pattern.h"

namespace motor {
namespace {

TEST(ComparisonTest, comparesTextsForEquality) {
  struct Case {
    const char* a;
    const char* b;
    bool same;
  };
  const Case cases[] = {
      {"Ávila", "ÁVILA", true}, {"Ávila", "Avila", false}, {"a", "a   ", true},
      {"", "   ", true},        {"a b", "ab", false},      {"ñ", "n", false},
      {"Ñ", "ñ", true},         {" a", "a", false},        {"An\xCC\x83o", "Año", true},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(equalTexts(c.a, c.b), c.same) << c.a << " = " << c.b;
    EXPECT_EQ(std::is_eq(orderTexts(c.a, c.b)), c.same) << c.a << " <> " << c.b;
  }
}

TEST(ComparisonTest, ordersTextsInSpanish) {
  const char* const names[] = {"",       "Ávila",  "avilés", "Burgos",  "León",
                               "Madrid", "mañana", "mapa",   "Segovia", "Zamora"};
  for (std::size_t i = 0; i < std::size(names); ++i) {
    for (std::size_t j = 0; j < std::size(names); ++j) {
      EXPECT_EQ(std::is_lt(orderTexts(names[i], names[j])), i < j) << names[i] << " < " << names[j];
    }
  }
}

TEST(ComparisonTest, comparesAcrossTypes) {
  EXPECT_EQ(equals(1, 1.0), true);
  EXPECT_EQ(equals(1, "1"), std::nullopt);
  EXPECT_EQ(equals(true, 1), true);
  EXPECT_EQ(equals(0, false), true);
  EXPECT_EQ(equals(true, "t"), true);
  EXPECT_EQ(equals(Value(), Value()), true);
  EXPECT_EQ(equals(Value(), ""), true);
  EXPECT_EQ(equals(Value(), 0), false);
  EXPECT_EQ(equals(ObjectPtr(), 0), std::nullopt);
  EXPECT_EQ(equals(ObjectPtr(), ObjectPtr()), true);
  EXPECT_EQ(order(2, 10), std::weak_ordering::less);
  EXPECT_EQ(order("2", "10"), std::weak_ordering::greater);
  EXPECT_EQ(order(Value(), -5), std::weak_ordering::less);
  EXPECT_EQ(order("a", Value()), std::weak_ordering::greater);
  EXPECT_EQ(order(3, "a"), std::nullopt);
}

TEST(ComparisonTest, relatesWhatIsInOrder) {
  struct Case {
    Operator op;
    bool less, same, greater;
  };
  const Case cases[] = {
      {Operator::equal, false, true, false},   {Operator::notEqual, true, false, true},
      {Operator::less, true, false, false},    {Operator::lessOrEqual, true, true, false},
      {Operator::greater, false, false, true}, {Operator::greaterOrEqual, false, true, true},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(satisfies(std::weak_ordering::less, c.op), c.less) << spelling(c.op);
    EXPECT_EQ(satisfies(std::weak_ordering::equivalent, c.op), c.same) << spelling(c.op);
    EXPECT_EQ(satisfies(std::weak_ordering::greater, c.op), c.greater) << spelling(c.op);
  }
}

TEST(ComparisonTest, knowsWhatIsTrue) {
  EXPECT_EQ(truth(true), true);
  EXPECT_EQ(truth(0), false);
  EXPECT_EQ(truth(-2), true);
  EXPECT_EQ(truth(Value()), false);
  EXPECT_EQ(truth(ObjectPtr()), false);
  EXPECT_EQ(truth("T"), std::nullopt);
}

TEST(LikePatternTest, matches) {
  struct Case {
    const char* text;
    const char* pattern;
    bool matches;
  };
  const Case cases[] = {
      {"Ávila", "avi%", true},
      {"Ávila", "%LA", true},
      {"Ávila", "avila", true},
      {"Ávila", "avi", false},
      {"Ávila", "_____", true},
      {"Ávila", "____", false},
      {"Ávila", "%", true},
      {"", "%", true},
      {"", "", true},
      {"", "_", false},
      {"aab", "%ab", true},
      {"abcabd", "%ab_", true},
      {"abc", "%a%b%c%", true},
      {"abc", "a%%c", true},
      {"acb", "a%b%c", false},
      {"España", "espana", true},
      {"León", "LEO_", true},
      {"a%b", "a%b", true},
      {"xaaaaaaaaab", "%a%a%b", true},
  };
  for (const Case& c : cases)
    EXPECT_EQ(LikePattern(c.pattern).matches(c.text), c.matches) << c.text << " " << c.pattern;
}

TEST(LikePatternTest, matchesExactlyAsFunction) {
  EXPECT_TRUE(likeExactly("Ávila", "Á%", ""));
  EXPECT_FALSE(likeExactly("Ávila", "á%", ""));
  EXPECT_FALSE(likeExactly("Ávila", "A%", ""));
  EXPECT_TRUE(likeExactly("10%", "10\\%", "\\"));
  EXPECT_FALSE(likeExactly("100", "10\\%", "\\"));
}

}  // namespace
}  // namespace motor

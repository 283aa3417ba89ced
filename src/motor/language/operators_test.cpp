#include "motor/language/operators.h"

#include <gtest/gtest.h>

#include <vector>

namespace motor {
namespace {

TEST(OperatorsTest, bindInThisOrder) {
  const std::vector<std::vector<Operator>> levels = {
      {Operator::logicalOr},
      {Operator::logicalAnd},
      {Operator::logicalNot},
      {Operator::equal, Operator::notEqual, Operator::less, Operator::lessOrEqual, Operator::greater,
       Operator::greaterOrEqual, Operator::like, Operator::contains, Operator::containsPart, Operator::containsEntire,
       Operator::within, Operator::partlyWithin, Operator::entirelyWithin, Operator::intersects, Operator::in,
       Operator::between},
      {Operator::add, Operator::subtract, Operator::concatenate},
      {Operator::multiply, Operator::divide, Operator::integerDivide, Operator::modulo},
      {Operator::negate, Operator::plus},
      {Operator::power},
  };
  for (std::size_t i = 0; i < levels.size(); ++i) {
    for (const Operator op : levels[i]) {
      EXPECT_EQ(precedence(op), precedence(levels[i].front())) << spelling(op);
      if (i > 0) {
        EXPECT_GT(precedence(op), precedence(levels[i - 1].front())) << spelling(op);
      }
    }
  }
}

TEST(OperatorsTest, areFoundBySpelling) {
  EXPECT_EQ(binaryOperator("mod"), Operator::modulo);
  EXPECT_EQ(binaryOperator("-"), Operator::subtract);
  EXPECT_EQ(binaryOperator("within"), Operator::within);
  EXPECT_EQ(binaryOperator("not"), std::nullopt);
  EXPECT_EQ(binaryOperator("in"), std::nullopt);
  EXPECT_EQ(binaryOperator("fooo"), std::nullopt);
}

}  // namespace
}  // namespace motor

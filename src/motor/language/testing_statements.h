#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "motor/language/parser.h"
#include "motor/language/testing_scope.h"

// What the tests of statements share.
namespace motor::testing_statements {

// The only statement of a text.
template <typename S>
S parsed(const std::string& source) {
  std::vector<Statement> statements = parseProgram(source);
  EXPECT_EQ(statements.size(), 1U) << source;
  EXPECT_TRUE(std::holds_alternative<S>(statements.at(0))) << source;
  return std::get<S>(statements.at(0));
}

// An expression's value as text; "-" when it was left out.
inline std::string shown(const ExpressionPtr& expression) {
  return expression ? expression->evaluate(testing_scope::FixedScope({{"frontwindow", 9}, {"v", 7}})).toText() : "-";
}
inline std::string shown(const CoordinatePair& pair) { return shown(pair.x) + "," + shown(pair.y); }
inline std::string shown(const Measure& measure) { return shown(measure.value) + " " + measure.unit; }
inline std::string shown(const std::vector<Name>& names) {
  std::string all;
  for (const Name& name : names) all += name.text + ";";
  return all;
}

// The message with which a text is rejected.
inline std::string rejected(const std::string& source) {
  try {
    static_cast<void>(parseProgram(source));
    return "no error";
  } catch (const LanguageError& error) {
    return error.what();
  }
}

}  // namespace motor::testing_statements

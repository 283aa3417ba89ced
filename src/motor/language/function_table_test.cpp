#include "motor/language/function_table.h"

#include <gtest/gtest.h>

#include <cmath>

#include "motor/language/decimal_rounding.h"
#include "motor/language/number_format.h"
#include "motor/language/parser.h"
#include "motor/language/testing_scope.h"

namespace motor {
namespace {

using testing_scope::FixedScope;

std::string evaluated(const std::string& source) {
  try {
    return parseExpression(source)->evaluate(FixedScope()).toText();
  } catch (const LanguageError& error) {
    return "error: " + error.reason();
  }
}

TEST(PureFunctionsTest, calculate) {
  struct Case {
    const char* source;
    const char* result;
  };
  const Case cases[] = {
      {"abs(-2.5)", "2.5"},
      {"int(-2.5)", "-3"},
      {"fix(-2.5)", "-2"},
      {"sgn(-2)+sgn(0)+sgn(5)", "0"},
      {"sqr(9)", "3"},
      {"sqr(-1)", "error: argumento 1: no puede ser negativo"},
      {"log(0)", "error: argumento 1: tiene que ser mayor que cero"},
      {"exp(0)", "1"},
      {"maximum(2,3)-minimum(2,3)", "1"},
      {"rgb(0,171,255)", "44031"},
      {"rgb(0,256,0)", "error: argumento 2: tiene que estar entre 0 y 255"},
      {"round(12345.6789,100)", "12300"},
      {"round(12345.6789,0.01)", "12345.68"},
      {"round(1,0)", "error: argumento 2: no puede ser cero"},
      {"round(\"1\",1)", "error: argumento 1: se esperaba un número"},
      {"chr$(34)+chr$(216)", "\"Ø"},
      {"chr$(9)+chr$(10)+chr$(13)", "\t\n\r"},
      {"chr$(0)", "error: argumento 1: es un carácter de control"},
      {"chr$(31)", "error: argumento 1: es un carácter de control"},
      {"chr$(127)", "error: argumento 1: es un carácter de control"},
      {"exp(1000)", "error: el resultado no es un número finito"},
      {"round(1.7e308,1e308)", "error: el resultado no es un número finito"},
      {"formatnumber$(1.5e16)", "15.000.000.000.000.000"},
      {"format$(1,\"0.\"+string$(600,\"0\"))", "error: argumento 2: el formato es demasiado largo"},
      {"len(format$(1e308,\"0.\"+string$(253,\"0\")))", "563"},
      {"chr$(256)", "error: argumento 1: tiene que estar entre 0 y 255"},
      {"asc(\"Ñ\")", "209"},
      {"asc(\"\")", "0"},
      {"str$(1.50)", "1.5"},
      {"val(\" 12.5 km\")", "12.5"},
      {"val(\"-3\")+val(\"+1\")", "-2"},
      {"val(\"km\")", "0"},
      {"ucase$(\"Año\")", "AÑO"},
      {"lcase$(\"AÑO\")", "año"},
      {"left$(\"Ávila\",2)", "Áv"},
      {"left$(\"Ávila\",-1)", "error: argumento 2: no puede ser negativo"},
      {"right$(\"León\",2)", "ón"},
      {"right$(\"León\",9)", "León"},
      {"right$(\"León\",0)", ""},
      {"mid$(\"Población\",7,3)", "ión"},
      {"mid$(\"x\",0,3)", "error: argumento 2: tiene que ser 1 o más"},
      {"len(\"año\")", "3"},
      {"instr(1,\"mañana\",\"ana\")", "4"},
      {"instr(2,\"aa\",\"b\")", "0"},
      {"ltrim$(\"  a \")+\"|\"", "a |"},
      {"rtrim$(\"  a \")+\"|\"", "  a|"},
      {"rtrim$(\"  \")+\"|\"", "|"},
      {"space$(3)+\"|\"", "   |"},
      {"len(space$(1000000))", "1000000"},
      {"space$(1000001)", "error: argumento 1: el texto sería demasiado largo"},
      {"len(string$(500000,\"ñ\"))", "500000"},
      {"string$(500001,\"ñ\")", "error: argumento 1: el texto sería demasiado largo"},
      {"proper$(string$(1000000,\"ŉ\"))", "error: argumento 1: el texto sería demasiado largo"},
      {"string$(3,\"ñx\")", "ñññ"},
      {"proper$(\"san JUAN de ávila\")", "San Juan De Ávila"},
      {"stringcompare(\"a\",\"A\")", "1"},
      {"like(\"Ávila\",\"á%\")", "F"},
      {"FORMATNUMBER$(1234567.891)", "1.234.567,891"},
      {"formatnumber$(\"1234.5\")", "1.234,5"},
      {"formatnumber$(\"x\")", "error: argumento 1: el texto no es un número"},
      {"formatnumber$(round(12.345,0.01))", "12,35"},
      {"format$(12345.6789,\",#.#\")", "12,345.7"},
  };
  for (const Case& c : cases) EXPECT_EQ(evaluated(c.source), c.result) << c.source;
}

TEST(DecimalRoundingTest, roundsTheNumberAsWritten) {
  struct Case {
    double value;
    double multiple;
    double result;
  };
  const Case cases[] = {
      {12.345, 0.01, 12.35},
      {-12.345, 0.01, -12.35},
      {0.345, 0.01, 0.35},
      {2.675, 0.01, 2.68},
      {1.005, 0.01, 1.01},
      {0.35, 0.01, 0.35},
      {2.5, 1, 3},
      {-2.5, 1, -3},
      {12.5, 5, 15},
      {7, 5, 5},
      {0.004, 0.01, 0},
      {-0.004, 0.01, 0},
      {1e15, 0.01, 1e15},
      {1e300, 0.01, 1e300},
      {12345.6789, -1, 12346},
      {1, 0.3, 0.9},
      {1e300, 1e-200, 1e300},
      {1e-300, 1, 0},
  };
  for (const Case& c : cases) EXPECT_EQ(roundToMultiple(c.value, c.multiple), c.result) << c.value << " " << c.multiple;
  EXPECT_EQ(roundToMultiple(1, 0), std::nullopt);
  EXPECT_EQ(roundToDecimals(1.005, 2), 1.01);
}

TEST(NumberFormatTest, groupsThousands) {
  struct Case {
    double value;
    const char* spanish;
    const char* english;
  };
  const Case cases[] = {
      {0, "0", "0"},
      {999, "999", "999"},
      {1000, "1.000", "1,000"},
      {1234567.89, "1.234.567,89", "1,234,567.89"},
      {-1234.5, "-1.234,5", "-1,234.5"},
      {0.05, "0,05", "0.05"},
      {1.5e16, "15.000.000.000.000.000", "15,000,000,000,000,000"},
      {-1e-16, "-0,0000000000000001", "-0.0000000000000001"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(formatNumber(c.value, {}), c.spanish);
    EXPECT_EQ(formatNumber(c.value, {".", ","}), c.english);
  }
}

TEST(NumberFormatTest, followsPatterns) {
  struct Case {
    double value;
    const char* pattern;
    const char* result;
  };
  const Case cases[] = {
      {12345.6789, ",#.#", "12,345.7"},
      {12.5, "###.#", "12.5"},
      {12, "###.#", "12"},
      {12, "0.00", "12.00"},
      {0.5, "#.##", ".5"},
      {0.5, "0.##", "0.5"},
      {7, "000", "007"},
      {-7, "0", "-7"},
      {0.256, "0.0%", "25.6%"},
      {1234, "$,0.00", "$1,234.00"},
      {-5, "0;(0)", "(5)"},
      {5, "0;(0)", "5"},
      {12345, "0.00E+00", "1.23E+04"},
      {0.00123, "0.0E-0", "1.2E-3"},
      {5, "\\#0", "#5"},
      {1, "text", "text"},
      {-0.001, "0.0", "0.0"},
      {2.675, "0.00", "2.68"},
      {99.99, "0.0E+0", "1.0E+2"},
      {5e-324, "0E-0", "5E-324"},
      {0, "0.0E+0", "0.0E+0"},
  };
  for (const Case& c : cases) EXPECT_EQ(formatByPattern(c.value, c.pattern), c.result) << c.value << " " << c.pattern;
}

TEST(NumberFormatTest, rejectsWhatItCannotWrite) {
  EXPECT_EQ(formatByPattern(1, "." + std::string(254, '0')), "1." + std::string(254, '0'));
  EXPECT_THROW(static_cast<void>(formatByPattern(1, "." + std::string(255, '0'))), EngineError);
  EXPECT_THROW(static_cast<void>(formatByPattern(1e308, "0%")), EngineError);
}

TEST(FunctionTableTest, rejectsNumbersThatAreNotFinite) {
  FunctionTable table;
  table.add("weird", 0, 0, [](const Arguments&) { return Value(std::nan("")); });
  const auto call = std::dynamic_pointer_cast<const FunctionCall>(parseExpression("weird()"));
  EXPECT_THROW(static_cast<void>(table.call(*call, {})), LanguageError);
}

TEST(FunctionTableTest, offersFunctionsOfAState) {
  struct Counter {
    int calls = 0;
  };
  constexpr StateFunctionEntry<Counter> kEntries[] = {
      {"times", 1, 1, [](Counter& counter, const Arguments& a) { return Value(a.number(0) * ++counter.calls); }}};
  Counter counter;
  FunctionTable table = pureFunctions();
  table.add<Counter>(counter, kEntries);
  const auto call = std::dynamic_pointer_cast<const FunctionCall>(parseExpression("Times(5)"));
  ASSERT_TRUE(call);
  const Value argument = 5;
  EXPECT_EQ(table.call(*call, {&argument, 1}), Value(5));
  EXPECT_EQ(table.call(*call, {&argument, 1}), Value(10));
  EXPECT_EQ(counter.calls, 2);
}

}  // namespace
}  // namespace motor

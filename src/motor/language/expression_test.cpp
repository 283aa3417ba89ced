#include "motor/language/expression.h"

#include <gtest/gtest.h>

#include "motor/language/parser.h"
#include "motor/language/testing_scope.h"

namespace motor {
namespace {

using testing_scope::FixedScope;

FixedScope scope() {
  return FixedScope({{"n", 3},
                     {"nombre", "Ávila"},
                     {"nada", Value()},
                     {"si", true},
                     {"t.nombre", "tabla"},
                     {"zones(1).valor", 7},
                     {"selection", "Selection"}});
}

std::string evaluated(const std::string& source) {
  const Value value = parseExpression(source)->evaluate(scope());
  if (value.isEmpty()) return "nothing";
  std::string shown = value.toText();
  if (value.text() != nullptr) {
    shown.insert(shown.begin(), '"');
    shown += '"';
  }
  return shown;
}

std::string rejected(const std::string& source) {
  try {
    return "no error, but " + evaluated(source);
  } catch (const LanguageError& error) {
    return error.what();
  }
}

TEST(ExpressionTest, evaluates) {
  struct Case {
    const char* source;
    const char* value;
  };
  const Case cases[] = {
      // numbers
      {"1+2*3", "7"},
      {"(1+2)*3", "9"},
      {"7\\2", "3"},
      {"-7\\2", "-3"},
      {"7 mod 4", "3"},
      {"2^3^2", "64"},
      {"-2^2", "-4"},
      {"2^-1", "0.5"},
      {"10-2-3", "5"},
      {"100/10/2", "5"},
      {"3.52*(45)/11.95", "13.255230125523013"},
      {"- - 3", "3"},
      {"+n", "3"},
      {"&HFF", "255"},
      {"nada+1", "nothing"},
      // texts
      {"\"a\"+\"b\"", "\"ab\""},
      {"\"Elev. \"+n", "\"Elev. 3\""},
      {"n+\" pies\"", "\"3 pies\""},
      {"1 & 2", "\"12\""},
      {"\"a\" & si", "\"aT\""},
      {"nada & \"x\"", "\"x\""},
      {"\"To\"+Chr$(10)+\"x\"", "\"To\nx\""},
      // names
      {"nombre", "\"Ávila\""},
      {"NOMBRE", "\"Ávila\""},
      {"t.nombre", "\"tabla\""},
      {"t.col(2)", "\"t/2\""},
      {"t.COL(1+1)", "\"t/2\""},
      {"col(n)", "\"/3\""},
      {"Zones(1).valor", "7"},
      {"true", "T"},
      {"False", "F"},
      // comparisons
      {"1=1", "T"},
      {"1<>1", "F"},
      {"2>1 and 1<2", "T"},
      {"1>=1 and 1<=0", "F"},
      {"nombre=\"ávila\"", "T"},
      {"nombre=\"avila\"", "F"},
      {"nombre=\"Ávila  \"", "T"},
      {"nombre like \"AV%\"", "T"},
      {"nombre like ( \"%LA%\" )", "T"},
      {"nombre not like \"AV%\"", "F"},
      {"nombre like \"_vil_\"", "T"},
      {"\"ñu\" > \"nz\"", "T"},
      {"\"ave\" < \"Ávila\"", "T"},
      {"\"a\" < \"A\"", "F"},
      {"si=\"T\"", "T"},
      {"si=1", "T"},
      {"nada=\"\"", "T"},
      {"nada<0", "T"},
      {"n in (1,2,3)", "T"},
      {"n not in (1,2,3)", "F"},
      {"nombre in (\"leon\", \"ÁVILA\")", "T"},
      {"n = any(1,3)", "T"},
      {"n <> all(1,3)", "F"},
      {"n > all(1,2)", "T"},
      {"n between 1 and 3", "T"},
      {"n between 1 and 2 or si", "T"},
      {"n not between 1 and 3", "F"},
      // logic
      {"not 1=1 or si", "T"},
      {"not (1=1 or si)", "F"},
      {"si or 1/0=1", "T"},
      {"not si and 1/0=1", "F"},
      {"1=0 or 1=0 and 1=1", "F"},
      {"1 and 2", "T"},
      {"not nada", "T"},
  };
  for (const Case& c : cases) EXPECT_EQ(evaluated(c.source), c.value) << c.source;
}

TEST(ExpressionTest, rejectsWithPositionAndWord) {
  struct Case {
    const char* source;
    const char* message;
  };
  const Case cases[] = {
      {"", "línea 1, columna 1: fin del texto: se esperaba una expresión"},
      {"1+", "línea 1, columna 3: fin del texto: se esperaba una expresión"},
      {"1 2", "línea 1, columna 3: «2»: se esperaba el final de la expresión"},
      {"(1", "línea 1, columna 3: fin del texto: se esperaba «)»"},
      {"from", "línea 1, columna 1: «from»: se esperaba una expresión"},
      {"t.", "línea 1, columna 3: fin del texto: se esperaba el nombre de una columna"},
      {"n between 1", "línea 1, columna 12: fin del texto: se esperaba And entre los dos límites de Between"},
      {"1 + fooo(2)", "línea 1, columna 5: «fooo»: no es una función conocida"},
      {"round(1)", "línea 1, columna 1: «round»: se esperaban 2 argumentos, no 1"},
      {"like(1,2,3,4)", "línea 1, columna 1: «like»: se esperaban de 2 a 3 argumentos, no 4"},
      {"abs(\"x\")", "línea 1, columna 5: «abs»: argumento 1: se esperaba un número"},
      {"otro", "línea 1, columna 1: «otro»: nombre desconocido"},
      {"1/0", "línea 1, columna 2: «/»: división por cero"},
      {"5 mod 0", "línea 1, columna 3: «mod»: división por cero"},
      {"10^400", "línea 1, columna 3: «^»: el resultado no es un número finito"},
      {"n*nombre", "línea 1, columna 2: «*»: se esperaba un número"},
      {"n=nombre", "línea 1, columna 2: «=»: los valores no se pueden comparar"},
      {"n<nombre", "línea 1, columna 2: «<»: los valores no se pueden comparar"},
      {"nombre and si", "línea 1, columna 8: «and»: se esperaba un valor lógico"},
      {"-nombre", "línea 1, columna 1: «-»: se esperaba un número"},
      {"n contains n", "línea 1, columna 3: «contains»: se esperaba un objeto del mapa"},
      {"count(*)", "línea 1, columna 1: «función de grupo»: sólo tiene sentido entre las columnas de Select"},
      {"n in (select a from b)", "línea 1, columna 7: «Select»: sólo tiene sentido en el Where de otro Select"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(rejected(c.source), c.message);
  }
}

TEST(ExpressionTest, limitsTexts) {
  const std::string half = "string$(500000,\"x\")";
  EXPECT_EQ(evaluated("len(" + half + "+" + half + ")"), "1000000");
  EXPECT_EQ(evaluated("len(" + half + "&" + half + ")"), "1000000");
  EXPECT_NE(rejected(half + "+" + half + "+\"x\"").find("«+»: el texto sería demasiado largo"), std::string::npos);
  EXPECT_NE(rejected(half + "&" + half + "&1").find("«&»: el texto sería demasiado largo"), std::string::npos);
  EXPECT_EQ(evaluated("len(\"" + std::string(1'000'000, 'x') + "\")"), "1000000");
  EXPECT_NE(rejected("\"" + std::string(1'000'001, 'x') + "\"").find("el texto es demasiado largo"), std::string::npos);
}

TEST(ExpressionTest, knowsColours) {
  struct Case {
    const char* source;
    const char* number;
  };
  const Case cases[] = {{"BLACK", "0"},          {"White", "16777215"},  {"red", "16711680"},
                        {"green", "65280"},      {"BLUE", "255"},        {"cyan", "65535"},
                        {"magenta", "16711935"}, {"YELLOW", "16776960"}, {"-red", "-16711680"}};
  for (const Case& c : cases) EXPECT_EQ(evaluated(c.source), c.number) << c.source;
  EXPECT_NE(rejected("t.red").find("nombre desconocido"), std::string::npos);
}

TEST(ExpressionTest, comparesWithSetsAsOneByOne) {
  struct Case {
    const char* source;
    const char* result;
  };
  const Case cases[] = {
      {"5 in (1, 5)", "T"},
      {"3 in (1, n, 6)", "T"},
      {"5 not in (1, 2)", "T"},
      {"\"ÁVILA \" in (\"León\", \"ávila\")", "T"},
      {"\"Avila\" in (\"León\", \"ávila\")", "F"},
      {"1 in (true)", "T"},
      {"true in (0, 2)", "F"},
      {"\"t\" in (true)", "T"},
      {"5 > any (7, 3)", "T"},
      {"5 > all (7, 3)", "F"},
      {"5 <= all (7, 5)", "T"},
      {"5 < any (5, 3)", "F"},
      {"5 = all (5, 5)", "T"},
      {"5 = all (5, 6)", "F"},
      {"5 <> any (5, 5)", "F"},
      {"5 <> any (5, 6)", "T"},
      {"\"b\" >= any (\"c\", \"Á\")", "T"},
  };
  for (const Case& c : cases) EXPECT_EQ(evaluated(c.source), c.result) << c.source;
  EXPECT_NE(rejected("5 in (\"a\", \"b\")").find("«=»: los valores no se pueden comparar"), std::string::npos);
  EXPECT_NE(rejected("5 < any (6, \"b\", n*nombre)").find("no"), std::string::npos);
}

TEST(ExpressionTest, limitsNesting) {
  const std::string deep(50, '(');
  EXPECT_EQ(evaluated(deep + "1" + std::string(50, ')')), "1");
  const std::string tooDeep(100'000, '(');
  EXPECT_NE(rejected(tooDeep + "1").find("demasiados niveles de anidamiento"), std::string::npos);
  std::string nots;
  for (int i = 0; i < 100'000; ++i) nots += "not ";
  EXPECT_NE(rejected(nots + "1").find("demasiados niveles de anidamiento"), std::string::npos);
  EXPECT_NE(rejected(std::string(100'000, '-') + "1").find("demasiados niveles de anidamiento"), std::string::npos);
}

TEST(ExpressionTest, limitsLength) {
  std::string sum = "1";
  for (int i = 1; i < 900; ++i) sum += "+1";
  EXPECT_EQ(evaluated(sum), "900");
  for (int i = 0; i < 100'000; ++i) sum += "+1";
  EXPECT_NE(rejected(sum).find("la expresión es demasiado larga"), std::string::npos);
}

}  // namespace
}  // namespace motor

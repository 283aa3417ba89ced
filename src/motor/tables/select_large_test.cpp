#include "motor/tables/select_fixture.h"

#ifndef __has_feature  // clang's
#define __has_feature(feature) 0
#endif

namespace motor {
namespace {

using testing_select::rectangle;
using testing_select::SelectTest;
using testing_select::TableBuilder;

// Tables too large to be compared row by row: that would take a hundred times as long.
class LargeSelectTest : public SelectTest {
 protected:
  static constexpr int kRows = 11'400;
  static constexpr int kShapes = 100;

  LargeSelectTest() {
    TableBuilder units({"Nombre", "Valor"});
    TableBuilder others({"Nombre", "Otro"});
    std::vector<ObjectPtr> squares;
    for (int i = 0; i < kShapes; ++i) squares.push_back(rectangle(i, 0, i + 0.9, 1));
    for (int i = 0; i < kRows; ++i) {
      const auto shape = static_cast<std::size_t>(i % kShapes);
      units.row({"Ávila " + std::to_string(i), i}, squares[shape]);
      others.row({"ÁVILA " + std::to_string(i + 1), i}, squares[shape]);
    }
    session_.open("Grande", units.build());
    session_.open("Otra", others.build());
  }

  [[nodiscard]] RowId rowsOf(const std::string& statement) const { return session_.select(statement)->rowCount(); }
};

TEST_F(LargeSelectTest, looksSetsUp) {
  struct Case {
    const char* where;
    RowId rows;
  };
  const Case cases[] = {
      {"nombre in (select nombre from otra)", kRows - 1},    {"nombre not in (select nombre from otra)", 1},
      {"nombre = any (select nombre from otra)", kRows - 1}, {"nombre <> all (select nombre from otra)", 1},
      {"valor+1 in (select otro from otra)", kRows - 1},     {"nombre >= all (select nombre from otra)", 1},
      {"valor >= any (select otro from otra)", kRows},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(rowsOf("select * from grande where " + std::string(c.where)), c.rows) << c.where;
  }
  std::string list = "\"x\"";
  for (int i = 0; i < kRows; ++i) list += ",\"ÁVILA " + std::to_string(2 * i) + "\"";
  EXPECT_EQ(rowsOf("select * from grande where nombre in (" + list + ")"), kRows / 2);
}

// The index answers where few rows pass, a look at each row where many do: both alike.
TEST_F(LargeSelectTest, comparesRepeatedTextsOnce) {
  TableBuilder repeated({"Nombre", "Valor"});
  for (int i = 0; i < 1600; ++i) repeated.row({i % 2 == 0 ? "Zona " + std::to_string(i % 80) : "Árbol", i});
  repeated.row({"ZONA 2", 1600}).row({"zona 20 ", 1601}).deletedRow();
  session_.open("Zonas", repeated.build());
  struct Case {
    const char* where;
    RowId rows;
  };
  const Case cases[] = {
      {"nombre like \"zoná 20%\"", 21}, {"nombre like \"zona 2%\"", 6 * 20 + 2},
      {"nombre like \"arbol\"", 800},   {"nombre like \"Á%\" and valor<10", 5},
      {"nombre <> \"Árbol\"", 802},     {"nombre > \"Zona 77\"", 40},
      {"nombre <= \"Árbol\"", 800},     {"nombre like \"nada%\"", 0},
      {"\"zona 2\" = nombre", 21},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(rowsOf("select * from zonas where " + std::string(c.where)), c.rows) << c.where;
  }
}

TEST_F(LargeSelectTest, joinsWhatPasses) {
  const std::string join = "select valor from grande, otra where ";
  EXPECT_EQ(rowsOf(join + "grande.nombre=otra.nombre"), kRows - 1);
  EXPECT_EQ(rowsOf(join + "valor>=0 and otro<100 and grande.obj contains otra.obj"), kRows);
  EXPECT_EQ(rowsOf(join + "grande.obj contains otra.obj and valor=otro"), kRows);
  // More than five million pairs of objects, few of which pass.
  EXPECT_EQ(rowsOf(join + "otro<500 and valor<10000 and valor+otro=10398"), 101);
}

TEST_F(LargeSelectTest, refusesJoinsThatTakeTooLong) {
  const std::string join = "select valor from grande, otra where ";
  const std::string tooMany = "la unión de tablas tiene que probar demasiados pares de filas";
  EXPECT_EQ(error(join + "valor<1000 and valor+otro>=0"), "el resultado de la unión de tablas es demasiado grande");
  EXPECT_EQ(error(join + "valor+otro=1"), tooMany);
  EXPECT_EQ(error(join + "valor*0=otro*0 and valor+otro=-1"), tooMany);
  EXPECT_EQ(error(join + "valor<1000 and (grande.obj contains otra.obj or valor+otro=-1)"),
            "hay que comparar demasiados pares de objetos: la condición no permite usar su índice");
}

constexpr const char* kTooMuch = "los valores que calcula la selección son demasiados o demasiado largos";

TEST_F(LargeSelectTest, refusesToFillTheMemory) {
  EXPECT_EQ(error("select String$(30000,\"a\") from grande"), kTooMuch);
}

// Wherever a select keeps what it makes up. The sanitizers take a minute for each of these.
#if !__has_feature(address_sanitizer)
TEST_F(LargeSelectTest, refusesToFillTheMemoryOnItsWay) {
  const std::string longText = "String$(30000,\"a\")";
  const std::string keys = "String$(5000,\"a\")&valor \"c\"";  // a text's place in the order takes six times its size
  session_.open("Hecha", session_.select("select String$(10000,\"a\") \"c\" from grande"));
  for (const std::string& statement :
       {"select count(*), " + longText + "&valor \"c\" from grande group by c",
        "select " + keys + " from grande order by c", "select count(*), " + keys + " from grande group by c",
        "select valor from grande, otra where " + longText + "&valor = " + longText + "&otro",
        std::string("select c, c \"d\", c \"e\" from hecha")}) {
    EXPECT_EQ(error(statement), kTooMuch) << statement;
  }
  EXPECT_EQ(rowsOf("select " + keys + " from grande"), kRows);
  EXPECT_EQ(rowsOf("select String$(1000,\"a\")&valor \"c\" from grande order by c"), kRows);
}
#endif

}  // namespace
}  // namespace motor

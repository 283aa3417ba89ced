#include "motor/tables/select.h"

#include <gtest/gtest.h>

#include <chrono>

#include "motor/tables/testing_select.h"

namespace motor {
namespace {

using testing_select::point;
using testing_select::rectangle;
using testing_select::shown;
using testing_select::TableBuilder;
using testing_select::TestSession;

// Units with a few figures each; the third row is deleted, the last has no value and no object.
class SelectTest : public testing::Test {
 protected:
  SelectTest() {
    const ObjectPtr west = rectangle(0, 0, 10, 10);
    const ObjectPtr east = rectangle(10, 0, 20, 10);
    TableBuilder units({"Nombre", "Sexo", "Tipo", "Valor"});
    units.row({"Zamora", "Mujeres", "Lista", 3}, west)
        .row({"Ávila", "Hombres", "Lista", 10}, east)
        .deletedRow()
        .row({"Zamora", "Hombres", "Grandes", 2.5}, west)
        .row({"avilés", "Hombres", "Grandes", 7}, point(50, 50))
        .row({"Ávila", "Mujeres", "Grandes", 10}, east)
        .row({"Burgos", "Mujeres", "Lista", Value()});
    units_ = units.build();
    session_.open("Unidades", units_);
    session_.open("Provincias", TableBuilder({"Nombre", "Capital", "Valor"})
                                    .row({"ávila", "AV", 100})
                                    .row({"Zamora", "ZA", 200})
                                    .row({"León", "LE", 300})
                                    .build());
  }

  std::string rows(const std::string& statement) const { return shown(*session_.select(statement)); }

  std::string error(const std::string& statement) const {
    try {
      return "no error, but " + rows(statement);
    } catch (const std::runtime_error& e) {
      return e.what();
    }
  }

  TestSession session_;
  std::shared_ptr<const BaseTable> units_;
};

TEST_F(SelectTest, choosesColumns) {
  EXPECT_EQ(rows("select Nombre, valor from unidades where rowid=2"), "Ávila,10");
  EXPECT_EQ(rows("select * from unidades where rowid=2"), "Ávila,Hombres,Lista,10");
  EXPECT_EQ(rows("select col4, Unidades.col1, col(2) from Unidades where rowid=2"), "10,Ávila,Hombres");
  const ResultPtr result =
      session_.select("select nombre \"Unidad\", valor*2, obj, round(valor,5) from unidades where rowid=1");
  ASSERT_EQ(result->columns().size(), 3U);
  EXPECT_EQ(result->columns()[0].name, "Unidad");
  EXPECT_EQ(result->columns()[1].name, "COL2");
  EXPECT_EQ(result->columns()[1].type, Column::Type::number);
  EXPECT_EQ(result->columns()[2].name, "COL3");
  EXPECT_EQ(result->findColumn("col1"), 0U);
  EXPECT_EQ(shown(*result), "Zamora,6,5");
}

TEST_F(SelectTest, filtersRows) {
  struct Case {
    const char* where;
    const char* valores;
  };
  const Case cases[] = {
      // by index
      {"nombre=\"Ávila\"", "10|10"},
      {"nombre=\"ÁVILA  \"", "10|10"},
      {"nombre=\"Avila\"", ""},
      {"\"zamora\" = nombre", "3|2.5"},
      {"nombre=ucase$(\"zamora\") and sexo=\"Hombres\"", "2.5"},
      {"sexo=\"Hombres\" and tipo=\"Grandes\" and nombre=\"Zamora\"", "2.5"},
      {"rowid=4", "2.5"},
      {"rowid=3", ""},
      {"rowid=99", ""},
      {"rowid=1.5", ""},
      // by test of each text or number
      {"nombre like \"avi%\"", "10|7|10"},
      {"nombre like \"%o_\"", ""},
      {"nombre like \"%OS\" or valor=7", "7|"},
      {"nombre <> \"Zamora\" and tipo <> \"Lista\"", "7|10"},
      {"nombre < \"avilés\"", "10|10"},
      {"nombre >= \"Burgos\"", "3|2.5|"},
      {"\"Burgos\" > nombre", "10|7|10"},
      {"valor=10", "10|10"},
      {"valor<>10", "3|2.5|7|"},
      {"valor>v", "10|7|10"},
      {"v<=valor", "10|7|10"},
      {"valor<2.6", "2.5|"},
      // row by row
      {"valor between 3 and 7", "3|7"},
      {"nombre in (\"burgos\", \"zamora\")", "3|2.5|"},
      {"nombre not in (\"burgos\", \"zamora\")", "10|7|10"},
      {"not obj", ""},
      {"len(nombre)=5 and not valor=3", "10|10"},
      {"valor*2=20 or sexo=\"hombres\" and tipo=\"grandes\"", "10|2.5|7|10"},
      {"1=1", "3|10|2.5|7|10|"},
      {"1=0", ""},
      // by a Select of its own
      {"nombre in (select nombre from provincias where valor>100)", "3|2.5"},
      {"nombre = any(select nombre from provincias)", "3|10|2.5|10"},
      {"nombre <> all(select nombre from provincias)", "7|"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(rows("select valor from unidades where " + std::string(c.where)), c.valores) << c.where;
  }
  EXPECT_EQ(session_.select("select * from unidades where not obj")->rowCount(), 1U);
}

TEST_F(SelectTest, findsObjectsUnderAPoint) {
  struct Case {
    const char* where;
    const char* names;
  };
  const Case cases[] = {
      {"obj contains createpoint(5,5)", "Zamora|Zamora"},
      {"obj contains createpoint(10,5)", "Zamora|Ávila|Zamora|Ávila"},
      {"createpoint(15,5) within obj", "Ávila|Ávila"},
      {"obj contains entire createpoint(15,5) and sexo=\"Mujeres\"", "Ávila"},
      {"obj contains createpoint(50,50)", ""},
      {"obj intersects createpoint(50,50)", "avilés"},
      {"unidades.obj contains createpoint(v,v)", "Zamora|Zamora"},
      {"not obj contains createpoint(5,5)", "Ávila|avilés|Ávila|Burgos"},
      {"obj within obj", "Zamora|Ávila|Zamora|Ávila"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(rows("select nombre from unidades where " + std::string(c.where)), c.names) << c.where;
  }
}

TEST_F(SelectTest, takesPointsInTheSessionsSystem) {
  const auto utm = CoordinateSystem::fromClause("Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0");
  session_.open("Metros",
                TableBuilder({"Nombre"}).row({"a"}, rectangle(499000, 4427000, 501000, 4429000)).system(utm).build());
  EXPECT_EQ(rows("select nombre from metros where obj contains createpoint(-3,40)"), "a");
  EXPECT_EQ(rows("select nombre from metros where obj contains createpoint(-3.02,40)"), "");
  EXPECT_EQ(rows("select nombre from metros where obj contains createpoint(500000,4428000)"), "");
  const std::string x = rows("select round(centroidx(obj),0.001) from metros");
  EXPECT_EQ(x, "-3");
}

TEST_F(SelectTest, ordersRows) {
  struct Case {
    const char* order;
    const char* names;
  };
  const Case cases[] = {
      {"nombre", "Ávila|Ávila|avilés|Burgos|Zamora|Zamora"},
      {"nombre desc", "Zamora|Zamora|Burgos|avilés|Ávila|Ávila"},
      {"valor", "Burgos|Zamora|Zamora|avilés|Ávila|Ávila"},
      {"sexo,tipo", "Zamora|avilés|Ávila|Ávila|Zamora|Burgos"},
      {"sexo desc, 1", "Ávila|Burgos|Zamora|Ávila|avilés|Zamora"},
      {"col1", "Ávila|Ávila|avilés|Burgos|Zamora|Zamora"},
      {"unidades.valor desc", "Ávila|Ávila|avilés|Zamora|Zamora|Burgos"},
      {"rowid desc", "Burgos|Ávila|avilés|Zamora|Ávila|Zamora"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(rows("select nombre from unidades order by " + std::string(c.order)), c.names) << c.order;
  }
  EXPECT_EQ(rows("select nombre, -valor \"menos\" from unidades where sexo=\"Mujeres\" order by menos"),
            "Burgos,|Ávila,-10|Zamora,-3");
}

TEST_F(SelectTest, groupsRows) {
  EXPECT_EQ(rows("select nombre from unidades group by nombre"), "Ávila|avilés|Burgos|Zamora");
  EXPECT_EQ(rows("select nombre from unidades where sexo=\"Mujeres\" group by nombre"), "Ávila|Burgos|Zamora");
  EXPECT_EQ(
      rows("select nombre, count(*), sum(valor), avg(valor), min(valor), max(valor) from unidades group by nombre"),
      "Ávila,2,20,10,10,10|avilés,1,7,7,7,7|Burgos,1,0,,,|Zamora,2,5.5,2.75,2.5,3");
  EXPECT_EQ(rows("select sexo, tipo, count(*) from unidades group by sexo, tipo"),
            "Hombres,Grandes,2|Hombres,Lista,1|Mujeres,Grandes,1|Mujeres,Lista,2");
  EXPECT_EQ(rows("select sexo, count(*) \"n\" from unidades group by sexo order by sexo desc"), "Mujeres,3|Hombres,3");
  EXPECT_EQ(rows("select tipo, sum(valor) \"s\" from unidades group by 1 order by s desc"), "Grandes,19.5|Lista,13");
  EXPECT_EQ(rows("select count(*), max(valor)-min(valor) from unidades"), "6,7.5");
  EXPECT_EQ(rows("select wtavg(valor, len(nombre)) from unidades where nombre=\"Zamora\""), "2.75");
  EXPECT_EQ(rows("select * from unidades group by sexo"), "Ávila,Hombres,Lista,10|Zamora,Mujeres,Lista,3");
  EXPECT_EQ(rows("select left$(nombre,1) \"letra\", count(*) from unidades group by letra"), "a,1|Á,2|B,1|Z,2");
  EXPECT_EQ(rows("select nombre from unidades where valor>1000 group by nombre"), "");
  EXPECT_EQ(session_.select("select count(*) from unidades")->columns()[0].type, Column::Type::integer);
}

TEST_F(SelectTest, groupsTextsThatDifferInCaseOnly) {
  session_.open("t", TableBuilder({"a"}).row({"león"}).row({"LEÓN"}).row({"leon"}).row({"Ávila"}).build());
  EXPECT_EQ(rows("select a, count(*) from t group by a"), "Ávila,1|leon,1|león,2");
}

TEST_F(SelectTest, joinsTables) {
  EXPECT_EQ(rows("select Unidades.nombre, capital, unidades.valor from unidades, provincias where unidades.nombre = "
                 "provincias.nombre"),
            "Zamora,ZA,3|Ávila,AV,10|Zamora,ZA,2.5|Ávila,AV,10");
  EXPECT_EQ(rows("select capital, sexo from provincias, unidades where unidades.nombre = provincias.nombre and "
                 "sexo=\"Mujeres\" "
                 "and unidades.valor*10 < provincias.valor order by capital"),
            "ZA,Mujeres");
  EXPECT_EQ(rows("select capital, tipo from provincias, unidades where unidades.valor < provincias.valor-295 "
                 "group by tipo"),
            "LE,Grandes|AV,Lista");
  EXPECT_EQ(
      session_.select("select * from unidades, provincias where unidades.nombre=provincias.nombre")->columns().size(),
      7U);
  EXPECT_NE(error("select * from unidades, provincias").find("varias tablas sólo se unen"), std::string::npos);
}

TEST_F(SelectTest, readsResultsOfOtherSelects) {
  const ResultPtr first =
      session_.select("select nombre, valor*2 \"doble\", valor from unidades where sexo=\"Mujeres\"");
  session_.open("Selection", first);
  const ResultPtr second = session_.select("select doble, nombre from selection where doble>5 order by valor desc");
  EXPECT_EQ(shown(*second), "20,Ávila|6,Zamora");
  EXPECT_EQ(second->base().name, "unidades");
  EXPECT_EQ(second->base().table, units_);
  EXPECT_EQ(second->sourceRow(1), 6U);
  EXPECT_EQ(rows("select nombre from selection where nombre=\"zamora\""), "Zamora");
  EXPECT_EQ(rows("select nombre from selection where obj contains createpoint(5,5)"), "Zamora");
  EXPECT_EQ(rows("select nombre from selection group by nombre"), "Ávila|Burgos|Zamora");
  const ResultPtr row = session_.select("select obj from selection where rowid=1");
  EXPECT_EQ(row->rowCount(), 1U);
  EXPECT_EQ(row->object(1), units_->object(1));
}

TEST_F(SelectTest, keepsObjectsAndRows) {
  const ResultPtr result = session_.select("select nombre from unidades where sexo=\"Hombres\" order by nombre");
  ASSERT_EQ(result->rowCount(), 3U);
  EXPECT_EQ(result->sourceRow(1), 2U);
  EXPECT_EQ(result->object(1), units_->object(2));
  EXPECT_EQ(result->bounds(), (Box{0, 0, 50, 50}));
  EXPECT_EQ(result->baseRowCount(), 3U);
  EXPECT_TRUE(result->hasObjects());
  EXPECT_FALSE(session_.select("select * from unidades where rowid=7")->object(1));
  const ResultPtr joined =
      session_.select("select capital from provincias, unidades where provincias.nombre=unidades.nombre");
  EXPECT_EQ(joined->rowCount(), 4U);
  EXPECT_EQ(joined->baseRowCount(), 2U);
}

TEST_F(SelectTest, countsNothingToo) {
  EXPECT_EQ(rows("select count(*) from unidades where valor>1000"), "0");
  EXPECT_EQ(
      rows("select count(*), sum(valor), max(valor), nombre, len(nombre) from unidades where 1=0 order by nombre"),
      "0,0,,,0");
  EXPECT_EQ(rows("select sexo, count(*) from unidades where 1=0 group by sexo"), "");
  const ResultPtr result = session_.select("select count(*), nombre from unidades where 1=0");
  EXPECT_EQ(result->rowCount(), 1U);
  EXPECT_EQ(result->baseRowCount(), 0U);
  EXPECT_FALSE(result->object(1));
  EXPECT_TRUE(result->bounds().isEmpty());
  session_.open("Nada", result);
  EXPECT_EQ(rows("select * from nada order by nombre"), "0,");
  EXPECT_EQ(rows("select count(*) from unidades, provincias where unidades.nombre=provincias.nombre and 1=0"), "0");
}

TEST_F(SelectTest, hidesColoursBehindColumns) {
  EXPECT_EQ(rows("select red from unidades where rowid=1"), "16711680");
  session_.open("Redes", TableBuilder({"Red"}).row({7}).build());
  EXPECT_EQ(rows("select red+0 from redes where red<>BLUE"), "7");
}

TEST_F(SelectTest, joinsByObjects) {
  session_.open("Puntos", TableBuilder({"id"})
                              .row({1}, point(5, 5))
                              .row({2}, point(15, 5))
                              .row({3}, point(90, 90))
                              .row({4})
                              .row({5}, point(10, 5))
                              .build());
  EXPECT_EQ(rows("select id, nombre from puntos, unidades where unidades.obj contains puntos.obj and sexo=\"Mujeres\""),
            "1,Zamora|2,Ávila|5,Zamora|5,Ávila");
  EXPECT_EQ(rows("select id, nombre from puntos, unidades where puntos.obj within unidades.obj and sexo=\"Mujeres\""),
            "1,Zamora|2,Ávila|5,Zamora|5,Ávila");
  EXPECT_EQ(rows("select nombre, id from unidades, puntos where unidades.obj contains puntos.obj and id>=2 and "
                 "tipo=\"Grandes\""),
            "Zamora,5|Ávila,2|Ávila,5");
  EXPECT_EQ(rows("select unidades.nombre, id from provincias, puntos, unidades where "
                 "unidades.nombre=provincias.nombre and unidades.obj contains puntos.obj and "
                 "unidades.valor*id < provincias.valor and sexo=\"Hombres\""),
            "Ávila,2|Ávila,5|Zamora,1|Zamora,5");
  EXPECT_EQ(rows("select id from puntos, unidades where unidades.obj contains puntos.obj and puntos.obj within "
                 "unidades.obj and unidades.rowid=1"),
            "1|5");
}

TEST_F(SelectTest, joinsByObjectsOfOtherSystems) {
  const auto utm = CoordinateSystem::fromClause("Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0");
  session_.open("Metros",
                TableBuilder({"Nombre"}).row({"a"}, rectangle(499000, 4427000, 501000, 4429000)).system(utm).build());
  session_.open("Grados", TableBuilder({"id"})
                              .row({1}, point(-3, 40))
                              .row({2}, point(-3.02, 40))
                              .system(CoordinateSystem::fromClause("Earth Projection 1, 104"))
                              .build());
  EXPECT_EQ(rows("select id from grados, metros where metros.obj contains grados.obj"), "1");
  EXPECT_EQ(rows("select id from metros, grados where metros.obj contains grados.obj"), "1");
}

// Tables too large to be compared row by row.
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

  // Milliseconds; a comparison of all with all takes a hundred times as long.
  static constexpr double kSoon = 2000;

  double millisecondsOf(const std::string& statement, RowId rows) const {
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(session_.select(statement)->rowCount(), rows) << statement;
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
  }
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
    EXPECT_LT(millisecondsOf("select * from grande where " + std::string(c.where), c.rows), kSoon) << c.where;
  }
  std::string list = "\"x\"";
  for (int i = 0; i < kRows; ++i) list += ",\"ÁVILA " + std::to_string(2 * i) + "\"";
  EXPECT_LT(millisecondsOf("select * from grande where nombre in (" + list + ")", kRows / 2), kSoon);
}

TEST_F(LargeSelectTest, joinsWhatPasses) {
  const std::string join = "select valor from grande, otra where ";
  EXPECT_LT(millisecondsOf(join + "grande.nombre=otra.nombre", kRows - 1), kSoon);
  EXPECT_LT(millisecondsOf(join + "valor>=0 and otro<100 and grande.obj contains otra.obj", kRows), kSoon);
  EXPECT_LT(millisecondsOf(join + "grande.obj contains otra.obj and valor=otro", kRows), kSoon);
  // More than five million pairs of objects, few of which pass.
  EXPECT_LT(millisecondsOf(join + "otro<500 and valor<10000 and valor+otro=10398", 101), 20 * kSoon);
  EXPECT_NE(error(join + "valor>=otro").find("demasiado grande"), std::string::npos);
}

TEST_F(SelectTest, saysWhatIsWrong) {
  struct Case {
    const char* statement;
    const char* message;
  };
  const Case cases[] = {
      {"select nombre from 1999", "línea 1, columna 20: «1999»: se esperaba el nombre de una tabla"},
      {"select nombre from otra", "la tabla «otra» no está abierta"},
      {"select fooo from unidades", "línea 1, columna 8: «fooo»: nombre desconocido"},
      {"select unidades.fooo from unidades", "línea 1, columna 8: «unidades.fooo»: la tabla no tiene esa columna"},
      {"select * from unidades where fooo=1", "línea 1, columna 30: «fooo»: nombre desconocido"},
      {"select * from unidades where nombre", "línea 1, columna 30: «Where»: se esperaba un valor lógico"},
      {"select * from unidades where nombre=1", "línea 1, columna 36: «=»: los valores no se pueden comparar"},
      {"select * from unidades where obj contains 5",
       "línea 1, columna 34: «contains»: se esperaba un objeto del mapa"},
      {"select * from unidades order by fooo", "línea 1, columna 33: «fooo»: no es una columna"},
      {"select * from unidades order by obj", "línea 1, columna 33: «obj»: no es una columna"},
      {"select nombre from unidades order by 2", "línea 1, columna 38: «2»: el resultado no tiene esa columna"},
      {"select col(9) from unidades", "línea 1, columna 8: «col»: la tabla no tiene esa columna"},
      {"select sum(nombre) from unidades", "línea 1, columna 12: «función de grupo»: se esperaba un número"},
      {"select sum(valor) from unidades group by 1",
       "línea 1, columna 42: «COL1»: no se puede agrupar por una función de grupo"},
      {"select * from unidades, unidades where 1=1",
       "línea 1, columna 25: «unidades»: la tabla está dos veces en From"},
      {"select * from unidades, Provincias, UNIDADES where 1=1",
       "línea 1, columna 37: «UNIDADES»: la tabla está dos veces en From"},
      {"select * from unidades where unidades.nombre=provincias.nombre",
       "línea 1, columna 46: «provincias.nombre»: la tabla «provincias» no está en From"},
      {"select * from unidades where 1=0 and provincias.nombre=\"a\"",
       "línea 1, columna 38: «provincias.nombre»: la tabla «provincias» no está en From"},
      {"select provincias.col(1) from unidades where 1=0",
       "línea 1, columna 8: «provincias»: la tabla «provincias» no está en From"},
      {"select * from unidades where nombre in (select nombre from provincias where valor=unidades.valor)",
       "línea 1, columna 83: «unidades.valor»: la tabla «unidades» no está en From"},
      {"select * from unidades where 1=0 and nombre in (select nombre from provincias where valor=sexo)",
       "línea 1, columna 91: «sexo»: nombre desconocido"},
      {"select * from unidades where 1=0 and fooo=1", "línea 1, columna 38: «fooo»: nombre desconocido"},
      {"select * from unidades where 1=0 order by fooo", "línea 1, columna 43: «fooo»: no es una columna"},
      {"select * from unidades where 1=0 and count(*)>1",
       "línea 1, columna 38: «función de grupo»: sólo tiene sentido entre las columnas de Select"},
      {"select sum(valor*1e308) from unidades where valor=10",
       "línea 1, columna 17: «*»: el resultado no es un número finito"},
      {"select sum(valor*1.5e307) from unidades where valor=10",
       "línea 1, columna 8: «función de grupo»: el resultado no es un número finito"},
      {"select * from unidades where count(*)>1",
       "línea 1, columna 30: «función de grupo»: sólo tiene sentido entre las columnas de Select"},
  };
  for (const Case& c : cases) EXPECT_EQ(error(c.statement), c.message) << c.statement;
}

}  // namespace
}  // namespace motor

#include "motor/tables/select_join.h"

#include "motor/tables/select_fixture.h"

namespace motor {
namespace {

using testing_select::point;
using testing_select::rectangle;
using testing_select::SelectTest;
using testing_select::TableBuilder;

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

}  // namespace
}  // namespace motor

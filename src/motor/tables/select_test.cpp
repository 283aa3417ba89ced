#include "motor/tables/select.h"

#include "motor/tables/select_fixture.h"

namespace motor {
namespace {

using testing_select::SelectTest;
using testing_select::shown;
using testing_select::TableBuilder;

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

}  // namespace
}  // namespace motor

#include "motor/tables/select_filter.h"

#include "motor/tables/select_fixture.h"

namespace motor {
namespace {

using testing_select::rectangle;
using testing_select::SelectTest;
using testing_select::TableBuilder;

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

}  // namespace
}  // namespace motor

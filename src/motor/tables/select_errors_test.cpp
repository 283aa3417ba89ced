#include "motor/tables/select_fixture.h"

namespace motor {
namespace {

using testing_select::SelectTest;

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

TEST_F(SelectTest, addsUpNoLogicalValues) {
  TableContents contents;
  contents.columns = {{"alta", Column::Type::logical, 0, 0}};
  contents.data.emplace_back(std::vector<double>{1, 0});
  contents.deleted = {false, false};
  contents.objects = ObjectSet({}, {ObjectSet::kNone, ObjectSet::kNone});
  session_.open("altas", std::make_shared<const BaseTable>(std::move(contents)));
  EXPECT_EQ(error("select sum(alta) from altas"), "línea 1, columna 12: «función de grupo»: se esperaba un número");
}

}  // namespace
}  // namespace motor

#include "motor/language/testing_statements.h"

namespace motor {
namespace {

using testing_statements::parsed;
using testing_statements::shown;

TEST(TableStatementsTest, areRead) {
  const auto open = parsed<OpenTable>("Open Table \"Provincias2001\" As Provincias2001 Interactive ReadOnly Hide");
  EXPECT_EQ(shown(open.file), "Provincias2001");
  EXPECT_EQ(open.as->text, "Provincias2001");
  EXPECT_TRUE(open.interactive);
  EXPECT_TRUE(open.hidden);
  EXPECT_FALSE(parsed<OpenTable>("open table \"a\"").as);
  EXPECT_EQ(shown(parsed<CloseTable>("Close Table a, b Interactive").tables), "a;b;");
  parsed<CloseAll>("Close All Interactive");
  const auto add = parsed<AddColumn>("Add Column \"t\" (x Logical) From s Set To a Where COL1 = COL1  Dynamic");
  EXPECT_EQ(add.table.text + "/" + add.column.text + "/" + add.type + "/" + add.source->text, "t/x/logical/s");
  EXPECT_TRUE(add.setTo);
  EXPECT_TRUE(add.where);
  const auto values = parsed<AddColumn>("Add Column t (c Char(20)) Values 1, 2, -3");
  EXPECT_EQ(values.type, "char");
  EXPECT_EQ(values.values.size(), 3U);
  EXPECT_EQ(parsed<AddColumn>("Add Column t (c) Values 1").type, "float");
}

TEST(TableStatementsTest, fetchInEveryDirection) {
  struct Case {
    const char* source;
    Fetch::Target target;
    const char* record;
    const char* table;
  };
  const Case cases[] = {
      {"Fetch first from Selection", Fetch::Target::first, "-", "Selection"},
      {"fetch next from selection", Fetch::Target::next, "-", "selection"},
      {"Fetch Last From t", Fetch::Target::last, "-", "t"},
      {"Fetch Prev From t", Fetch::Target::previous, "-", "t"},
      {"Fetch Rec 12 From ZonasBasicas1999", Fetch::Target::record, "12", "ZonasBasicas1999"},
  };
  for (const Case& c : cases) {
    const auto fetch = parsed<Fetch>(c.source);
    EXPECT_EQ(fetch.target, c.target) << c.source;
    EXPECT_EQ(shown(fetch.record), c.record) << c.source;
    EXPECT_EQ(fetch.table.text, c.table) << c.source;
  }
}

TEST(SelectStatementTest, isRead) {
  const auto select = parsed<SelectStatement>(
      "Select Año,Nombre \"Unidad\",valor*2 from provincias2001 where nombre=\"Ávila\" order by sexo,tipo desc, 3");
  EXPECT_FALSE(select.all);
  ASSERT_EQ(select.columns.size(), 3U);
  EXPECT_EQ(select.columns[0].value.text, "Año");
  EXPECT_EQ(select.columns[1].alias, "Unidad");
  EXPECT_EQ(select.columns[2].value.text, "valor*2");
  EXPECT_EQ(shown(select.tables), "provincias2001;");
  EXPECT_TRUE(select.where);
  ASSERT_EQ(select.orderBy.size(), 3U);
  EXPECT_FALSE(select.orderBy[0].descending);
  EXPECT_TRUE(select.orderBy[1].descending);
  EXPECT_TRUE(select.groupBy.empty());
  EXPECT_FALSE(select.into);
}

TEST(SelectStatementTest, knowsTheFormsThatProgramsWrite) {
  struct Case {
    const char* source;
    bool all;
    std::size_t columns;
    std::size_t tables;
    std::size_t groups;
    std::size_t orders;
    const char* into;
  };
  const Case cases[] = {
      {"Select nombre from provincias1999 group by nombre", false, 1, 1, 1, 0, ""},
      {"Select nombre from Provincias1999 where nombre like \"Avi%\" group by nombre", false, 1, 1, 1, 0, ""},
      {"Select Nombre from ZonasBasicas1999 where Provincia=\"León\" group by nombre", false, 1, 1, 1, 0, ""},
      {"Select * from t  where obj contains createpoint(1.5,-2) order by tipo,indicador", true, 0, 1, 0, 2, ""},
      {"Select obj from selection where rowid=1", false, 1, 1, 0, 0, ""},
      {"Select obj from t where rowid=12", false, 1, 1, 0, 0, ""},
      {"Select CentroidX(obj), CentroidY(obj) from t where nombre=\"x\"", false, 2, 1, 0, 0, ""},
      {"Select *  from a , b  where a . id = b . id  into Q noselect  group by x order by y desc", true, 0, 2, 1, 1,
       "Q"},
      {"Select count(*), sum(valor) \"total\" from t group by 1 into Q", false, 2, 1, 1, 0, "Q"},
      {"Select * from t where n in (\"OF11\" , \"OF12A\")  into Q noselect", true, 0, 1, 0, 0, "Q"},
      {"Select * from t where n in (select n from u where v > 1)", true, 0, 1, 0, 0, ""},
      {"Select * from Zones(1) where not obj", true, 0, 1, 0, 0, ""},
      {"Select * from t where obj partly within v", true, 0, 1, 0, 0, ""},
  };
  for (const Case& c : cases) {
    const auto select = parsed<SelectStatement>(c.source);
    EXPECT_EQ(select.all, c.all) << c.source;
    EXPECT_EQ(select.columns.size(), c.columns) << c.source;
    EXPECT_EQ(select.tables.size(), c.tables) << c.source;
    EXPECT_EQ(select.groupBy.size(), c.groups) << c.source;
    EXPECT_EQ(select.orderBy.size(), c.orders) << c.source;
    EXPECT_EQ(select.into ? select.into->text : "", c.into) << c.source;
  }
  EXPECT_TRUE(parsed<SelectStatement>("Select * from t into Q noselect").noSelect);
}

}  // namespace
}  // namespace motor

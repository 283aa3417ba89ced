#include "atlas/queries/indicator_tree.h"

#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;
using testing::Row;

class IndicatorTree : public testing::Program {
 protected:
  void SetUp() override {
    startOnTab(2);
    main().FichaAños.userPick(2);
    world.lines.clear();
  }
  static Row row(const std::string& name, const std::string& sex, const std::string& type, const std::string& indicator,
                 const std::string& value) {
    return {{"año", "2001"},          {"nombre", name}, {"sexo", sex},    {"tipo", type},
            {"indicador", indicator}, {"valor", value}, {"col1", "Norte"}};
  }
  Lines tree() { return testing::describe(main().TreeView1); }
  void select(const testing::Rows& rows) {
    world.tables = {{"from x", rows}};
    SeleccionarFilas(atlas, "Select * from x");
    world.lines.clear();
  }
};

TEST_F(IndicatorTree, SexesTypesAndIndicatorsInRowOrder) {
  select({row("Norte", "Ambos sexos", "General", "Población", "10"),
          row("Norte", "Ambos sexos", "Grandes grupos", "Tasa estandarizada (x100.000) de Tumores", "12,35"),
          row("Norte", "Hombres", "General", "Tasa estandarizada (x100.000) de todo", "5"),
          row("Norte", "Mujeres", "Lista reducida", "Tasa estandarizada (x100.000) de Neumonía", "6")});
  AgregarUnidadArbol(atlas, YearNode::wanted);
  EXPECT_EQ(tree(), (Lines{"2001 * 8388608", "Norte * 8388608 +", "  Ambos sexos 192", "    General 8388608",
                           "      Población: 10", "    Grandes grupos (Tasas estandarizadas x100.000) 8388608",
                           "      Tumores: 12,35", "  Hombres 192", "    General 8388608",
                           "      Tasa estandarizada (x100.000) de todo: 5", "  Mujeres 192",
                           "    Lista reducida (Tasas estandarizadas x100.000) 8388608", "      Neumonía: 6"}));
}

TEST_F(IndicatorTree, ReadsOneFieldAtATime) {
  select({row("Norte", "Hombres", "General", "Población", "10"),
          row("Norte", "Hombres", "Lista reducida", "Tasa estandarizada (x100.000) de Neumonía", "6"),
          row("Norte", "Hombres", "Lista reducida", "Tasa estandarizada (x100.000) de Tumores", "7")});
  AgregarUnidadArbol(atlas, YearNode::none);
  EXPECT_EQ(world.take({"do", "eval"}), (Lines{"eval Selection.nombre = Norte",
                                               "eval EOT(\"Selection\") = F",
                                               "eval Selection.sexo = Hombres",
                                               "eval Selection.sexo = Hombres",
                                               "eval Selection.tipo = General",
                                               "eval Selection.tipo = General",
                                               "eval selection.indicador = Población",
                                               "eval Formatnumber$(round(Selection.valor,0.01)) = 10",
                                               "do Fetch next from selection",
                                               "eval EOT(\"Selection\") = F",
                                               "eval Selection.sexo = Hombres",
                                               "eval Selection.tipo = Lista reducida",
                                               "eval Selection.tipo = Lista reducida",
                                               "eval selection.indicador = Tasa estandarizada (x100.000) de Neumonía",
                                               "eval selection.indicador = Tasa estandarizada (x100.000) de Neumonía",
                                               "eval Formatnumber$(round(Selection.valor,0.01)) = 6",
                                               "do Fetch next from selection",
                                               "eval EOT(\"Selection\") = F",
                                               "eval Selection.sexo = Hombres",
                                               "eval Selection.tipo = Lista reducida",
                                               "eval selection.indicador = Tasa estandarizada (x100.000) de Tumores",
                                               "eval selection.indicador = Tasa estandarizada (x100.000) de Tumores",
                                               "eval Formatnumber$(round(Selection.valor,0.01)) = 7",
                                               "do Fetch next from selection",
                                               "eval EOT(\"Selection\") = T"}));
}

TEST_F(IndicatorTree, ATypeThatGoesOnOverANewSexStaysUnderTheSexBefore) {
  select({row("Norte", "Hombres", "General", "Población", "10"), row("Norte", "Mujeres", "General", "Población", "11"),
          row("Norte", "Mujeres", "Otros", "Fallecidos", "2")});
  AgregarUnidadArbol(atlas, YearNode::none);
  EXPECT_EQ(tree(), (Lines{"Norte * 8388608 +", "  Hombres 192", "    General 8388608", "      Población: 10",
                           "      Población: 11", "  Mujeres 192", "    Otros 8388608", "      Fallecidos: 2"}));
}

TEST_F(IndicatorTree, AnIndicatorOfACauseListLosesItsFirst33CharactersWhateverTheyAre) {
  select({row("Norte", "Hombres", "Lista reducida", "ñññññññññññññññññññññññññññññññññresto", "1")});
  AgregarUnidadArbol(atlas, YearNode::none);
  EXPECT_EQ(tree().back(), "      resto: 1");
}

TEST_F(IndicatorTree, ARowWithoutSexHasNoPlace) {
  select({row("Norte", "", "General", "Población", "10")});
  EXPECT_THROW(AgregarUnidadArbol(atlas, YearNode::none), Failure);
}

TEST_F(IndicatorTree, AnEmptySelectionFails) {
  select({});
  EXPECT_THROW(AgregarUnidadArbol(atlas, YearNode::wanted), Failure);
  EXPECT_EQ(tree(), Lines{});
}

TEST_F(IndicatorTree, UnitsAboveAZoneAreItsProvinceAndTheRegion) {
  world.tables = {{"from ZonasBasicas2001", {row("Alameda", "", "", "", "")}},
                  {"from Provincias2001", {row("Norte", "Hombres", "General", "Población", "10")}},
                  {"from Veldoria2001", {row("Veldoria", "Ambos sexos", "Otros", "Fallecidos", "3")}}};
  atlas.unit = {"ZonasBasicas", "Alameda"};
  AgregarUnidadesSuperiores(atlas);
  EXPECT_EQ(
      world.take({"do Select", "do Fetch first", "eval Selection.COL1", "eval Selection.nombre"}),
      (Lines{"do Select provincia from ZonasBasicas2001 where nombre=\"Alameda\"", "eval Selection.COL1 = Norte",
             ("do Select Año,Nombre,Sexo,Tipo,indicador,valor from Provincias2001 where nombre=\"Norte\" order by "
              "sexo,tipo"),
             "do Fetch first from selection", "eval Selection.nombre = Norte",
             "do Select Año,Nombre,Sexo,Tipo,indicador,valor from Veldoria2001 order by sexo,tipo",
             "do Fetch first from selection", "eval Selection.nombre = Veldoria"}));
  EXPECT_EQ(tree(), (Lines{"Norte * 8388608 +", "  Hombres 192", "    General 8388608", "      Población: 10",
                           "Veldoria * 8388608 +", "  Ambos sexos 192", "    Otros 8388608", "      Fallecidos: 3"}));
}

TEST_F(IndicatorTree, TheRegionGoesOnFromWhatTheProvinceSawLast) {
  world.tables = {{"from ZonasBasicas2001", {row("Alameda", "", "", "", "")}},
                  {"from Provincias2001", {row("Norte", "Mujeres", "Otros", "Fallecidos", "1")}},
                  {"from Veldoria2001",
                   {row("Veldoria", "Ambos sexos", "Otros", "Fallecidos", "2"),
                    row("Veldoria", "Ambos sexos", "General", "Población", "3")}}};
  atlas.unit = {"ZonasBasicas", "Alameda"};
  AgregarUnidadesSuperiores(atlas);
  EXPECT_EQ(tree(), (Lines{"Norte * 8388608 +", "  Mujeres 192", "    Otros 8388608", "      Fallecidos: 1",
                           "      Fallecidos: 2", "Veldoria * 8388608 +", "  Ambos sexos 192", "    General 8388608",
                           "      Población: 3"}));
}

TEST_F(IndicatorTree, TheLastSexSeenAlsoGoesOn) {
  world.tables = {{"from ZonasBasicas2001", {row("Alameda", "", "", "", "")}},
                  {"from Provincias2001", {row("Norte", "Hombres", "Otros", "Fallecidos", "1")}},
                  {"from Veldoria2001", {row("Veldoria", "Hombres", "General", "Población", "3")}}};
  atlas.unit = {"ZonasBasicas", "Alameda"};
  AgregarUnidadesSuperiores(atlas);
  EXPECT_EQ(tree(), (Lines{"Norte * 8388608 +", "  Hombres 192", "    Otros 8388608", "      Fallecidos: 1",
                           "    General 8388608", "      Población: 3", "Veldoria * 8388608 +"}));
}

TEST_F(IndicatorTree, EachCallStartsAnew) {
  world.tables = {{"from Veldoria2001", {row("Veldoria", "Hombres", "General", "Población", "3")}}};
  atlas.unit = {"Provincias", "Norte"};
  AgregarUnidadesSuperiores(atlas);
  AgregarUnidadesSuperiores(atlas);
  const Lines once{"Veldoria * 8388608 +", "  Hombres 192", "    General 8388608", "      Población: 3"};
  Lines twice = once;
  twice.insert(twice.end(), once.begin(), once.end());
  EXPECT_EQ(tree(), twice);
}

TEST_F(IndicatorTree, OnlyTheWholePrefixIsCut) {
  EXPECT_EQ(withoutCausePrefix("Tasa estandarizada (x100.000) de Tumores"), "Tumores");
  EXPECT_EQ(withoutCausePrefix("Tasa estandarizada (x100.000)"), "Tasa estandarizada (x100.000)");
  EXPECT_EQ(withoutCausePrefix("Población"), "Población");
}

}  // namespace
}  // namespace atlas

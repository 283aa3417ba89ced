#include "hosts/screen/tree_text.h"

#include <gtest/gtest.h>

#include "atlas/queries/indicator_tree.h"
#include "forms/form.h"
#include "forms/test_form.h"

namespace screen {
namespace {

using forms::Node;

constexpr forms::NodeStyle kUnit{.bold = true, .color = atlas::kNavyNode};
constexpr forms::NodeStyle kSex{.bold = false, .color = atlas::kSexNode};
constexpr forms::NodeStyle kType{.bold = false, .color = atlas::kNavyNode};

const std::string kHeading = "Año\tUnidad\tSexo\tTipo\tIndicador\tValor\n";

class TreeText : public ::testing::Test {
 protected:
  // As a consultation of a zone leaves it: the year, the zone, its province.
  void consult() {
    year = &tree.add(nullptr, "2001", kUnit);
    zone = &tree.add(nullptr, "Haya", kUnit);
    sex = &tree.add(zone, "Hombres", kSex);
    type = &tree.add(sex, "Grandes grupos (Tasas estandarizadas x100.000)", kType);
    figure = &tree.add(type, "Tumores: 228,05");
    tree.add(type, "Embarazo, parto y puerperio: 0");
    Node& general = tree.add(sex, "Indicadores generales", kType);
    tree.add(&general, "Población: 1.234");
    Node& province = tree.add(nullptr, "Brisa", kUnit);
    tree.add(&tree.add(&tree.add(&province, "Mujeres", kSex), "Indicadores generales", kType), "Fallecidos: 7");
  }
  [[nodiscard]] std::string whole() const { return treeText(tree).text; }
  [[nodiscard]] std::string branch(const Node& node) const { return branchText(tree, node).text; }

  forms::testing::Log listener;
  forms::Form form{listener, "frmPrueba"};
  forms::TreeView tree{form, "Arbol"};
  Node* year = nullptr;
  Node* zone = nullptr;
  Node* sex = nullptr;
  Node* type = nullptr;
  Node* figure = nullptr;
};

TEST_F(TreeText, AnEmptyTreeSaysNothing) {
  EXPECT_EQ(whole(), "");
  EXPECT_EQ(treeText(tree).rows, 0);
}

TEST_F(TreeText, HasARowForEachIndicatorWithWhatStandsAboveIt) {
  consult();
  EXPECT_EQ(whole(), kHeading +
                         "2001\tHaya\tHombres\tGrandes grupos (Tasas estandarizadas x100.000)\tTumores\t228,05\n"
                         "2001\tHaya\tHombres\tGrandes grupos (Tasas estandarizadas x100.000)\t"
                         "Embarazo, parto y puerperio\t0\n"
                         "2001\tHaya\tHombres\tIndicadores generales\tPoblación\t1.234\n"
                         "2001\tBrisa\tMujeres\tIndicadores generales\tFallecidos\t7\n");
  EXPECT_EQ(treeText(tree).rows, 4);
}

TEST_F(TreeText, OfABranchHasItsRowsAlone) {
  consult();
  const std::string tumours = "2001\tHaya\tHombres\tGrandes grupos (Tasas estandarizadas x100.000)\tTumores\t228,05\n";
  EXPECT_EQ(branch(*figure), kHeading + tumours);
  EXPECT_EQ(branchText(tree, *type).rows, 2);
  EXPECT_TRUE(branch(*type).starts_with(kHeading + tumours));
  EXPECT_EQ(branchText(tree, *sex).rows, 3);
  EXPECT_EQ(branch(*zone), branch(*sex));
  EXPECT_EQ(branch(*year), kHeading + "2001\t\t\t\t\t\n");
}

TEST_F(TreeText, UnitsWithoutIndicatorsHaveARowEach) {
  tree.add(nullptr, "1999", kUnit);
  tree.add(nullptr, "Haya", kUnit);
  tree.add(nullptr, "Brisa", kUnit);
  EXPECT_EQ(whole(), kHeading + "1999\tHaya\t\t\t\t\n1999\tBrisa\t\t\t\t\n");
}

TEST_F(TreeText, ASexLeftWithoutIndicatorsHasNone) {
  Node& unit = tree.add(nullptr, "Haya", kUnit);
  Node& general = tree.add(&tree.add(&unit, "Hombres", kSex), "Indicadores generales", kType);
  Node& left = tree.add(&unit, "Mujeres", kSex);
  tree.add(&general, "Fallecidos: 7");
  EXPECT_EQ(whole(), kHeading + "\tHaya\tHombres\tIndicadores generales\tFallecidos\t7\n");
  EXPECT_EQ(branch(left), kHeading + "\tHaya\tMujeres\t\t\t\n");
}

TEST_F(TreeText, TheLineBeforeAThematicFigureIsItsSex) {
  Node& unit = tree.add(nullptr, "Haya", kUnit);
  Node& line = tree.add(&unit, "Ambos sexos");
  tree.add(&unit, "Población: 1.234,5");
  EXPECT_EQ(whole(), kHeading + "\tHaya\tAmbos sexos\t\tPoblación\t1.234,5\n");
  EXPECT_EQ(branch(line), kHeading + "\tHaya\tAmbos sexos\t\t\t\n");
}

TEST_F(TreeText, StatisticsHaveTheirGroupForAType) {
  Node& unit = tree.add(nullptr, "Veldoria", kUnit);
  tree.add(&tree.add(&unit, "Demografía"), "Densidad (hab./km²): 54,2");
  EXPECT_EQ(whole(), kHeading + "\tVeldoria\t\tDemografía\tDensidad (hab./km²)\t54,2\n");
}

TEST_F(TreeText, NoTextPartsItsLine) {
  Node& unit = tree.add(nullptr, "\"Haya\"\tde\r\narriba", kUnit);
  tree.add(&unit, "\"Población\": 3");
  EXPECT_EQ(whole(), kHeading + "\t\"\"\"Haya\"\" de  arriba\"\t\t\t\"\"\"Población\"\"\"\t3\n");
}

}  // namespace
}  // namespace screen

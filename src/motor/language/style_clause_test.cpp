#include "motor/language/style_clause.h"

#include <gtest/gtest.h>

#include "motor/language/parser.h"
#include "motor/language/testing_scope.h"

namespace motor {
namespace {

using testing_scope::FixedScope;

StyleList parseStyles(const std::string& clauses) {
  const auto statements = parseProgram("Set Map Layer 1 Global " + clauses);
  return std::get<SetMap>(statements.at(0)).layers.at(0).global;
}

Styles styles(const std::string& clauses) { return evaluate(parseStyles(clauses), FixedScope()); }

TEST(StyleClauseTest, evaluates) {
  const Styles all = styles(
      "Pen (1,2,44031) Line (70,2,RGB(255,255,0)) Brush (2,255,255) Symbol (34,255,12) Font (\"Tahoma\",1,8,16777215)");
  EXPECT_EQ(all.pen, (Pen{1, 2, 44031}));
  EXPECT_EQ(all.line, (Pen{70, 2, 16776960}));
  EXPECT_EQ(all.brush, (Brush{2, 255, 255}));
  EXPECT_EQ(all.symbol, (Symbol{34, 255, 12, "", "", 0, 0}));
  EXPECT_EQ(all.font, (Font{"Tahoma", 1, 8, 16777215, kTransparent}));
  EXPECT_EQ(styles(""), Styles());
}

TEST(StyleClauseTest, knowsEveryForm) {
  EXPECT_EQ(styles("Brush (15,15597520)").brush, (Brush{15, 15597520, kTransparent}));
  EXPECT_EQ(styles("Symbol (38,11556864,24,\"Otra\",257,45.5)").symbol,
            (Symbol{38, 11556864, 24, "Otra", "", 257, 45.5}));
  EXPECT_EQ(styles("Symbol (\"FIRE1-32.BMP\",0,36,4)").symbol, (Symbol{35, 0, 36, "", "FIRE1-32.BMP", 4, 0}));
  EXPECT_EQ(styles("Font (\"Arial\",257,9,0,16777215)").font, (Font{"Arial", 257, 9, 0, 16777215}));
  EXPECT_EQ(styles("Pen (1,2,3) Pen (4,5,6)").pen, (Pen{4, 5, 6}));
}

TEST(StyleClauseTest, rejectsWrongArguments) {
  const char* const wrong[] = {
      "Pen (1,2)",        "Pen (1,2,3,4)",    "Pen (\"a\",2,3)",        "Brush (2)",
      "Symbol (34,0)",    "Symbol (1,2,3,4)", "Symbol (1,2,3,\"a\",5)", "Symbol (1,2,3,4,5,6)",
      "Font (\"a\",1,2)", "Font (1,1,2,3)",   "Pen (1,2,1e20)",
  };
  for (const char* clause : wrong) EXPECT_THROW(static_cast<void>(styles(clause)), LanguageError) << clause;
  EXPECT_THROW(static_cast<void>(parseStyles("Pen 5")), LanguageError);
}

}  // namespace
}  // namespace motor

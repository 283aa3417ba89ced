#include "motor/drawing/label_texts.h"

#include <gtest/gtest.h>

#include "motor/drawing/small_maps.h"

namespace motor {
namespace {

Layer oneRow() {
  return small::layer({small::region({small::square(0, 0, 10, 10)}, Brush{2, small::kRed, kTransparent})}, {"Ñorga"});
}

TEST(LabelTexts, AreTheExpressionOverTheRowOrTheFirstTextColumn) {
  struct Case {
    const char* expression;
    const char* text;
  };
  LabelTexts texts;
  for (const Case& c :
       {Case{"", "Ñorga"}, Case{"nombre", "Ñorga"}, Case{"Capa.Nombre", "Ñorga"}, Case{"col1", "0.5"},
        Case{"Valor * 4", "2"}, Case{"Nombre + \": \" + Valor", "Ñorga: 0.5"}, Case{"rowid", "1"},
        Case{"UCase$(Nombre)", "ÑORGA"}, Case{"Otra.Nombre", ""}, Case{"NoHay", ""}, Case{"Nombre +", ""}}) {
    Layer layer = oneRow();
    layer.label.expression = c.expression;
    EXPECT_EQ(texts.of(layer, 1), c.text) << c.expression;
  }
}

}  // namespace
}  // namespace motor

#include "motor/drawing/symbols.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "motor/drawing/small_pictures.h"
#include "motor/drawing/symbol_shapes.h"

namespace motor {
namespace {

using small::blank;
using small::countOf;
using small::kInk;
using small::kInkColour;
using small::picture;

QImage stamped(const Symbol& symbol) {
  return picture({40, 40}, 1, [&](QPainter& painter) { paintSymbol(painter, symbol, {20, 20}); });
}

TEST(Symbols, EveryShapeLeavesInkInsideItsSize) {
  std::set<std::string> figures;
  for (int number = 32; number <= 67; ++number) {
    ASSERT_NE(symbolShape(number), nullptr) << number;
    const SymbolShape& shape = *symbolShape(number);
    EXPECT_TRUE(figures.insert(std::string(shape.figure) + (shape.filled ? "+" : "-")).second) << number;
    const QRectF bounds = symbolPath(shape).boundingRect();
    EXPECT_TRUE(QRectF(-1.001, -1.001, 2.002, 2.002).contains(bounds)) << number;
    Symbol symbol;
    symbol.shape = number;
    symbol.colour = kInkColour;
    EXPECT_NE(stamped(symbol), blank({40, 40})) << number;
  }
}

TEST(Symbols, ThirtyOneDrawsNothing) {
  Symbol symbol;
  symbol.shape = 31;
  EXPECT_EQ(stamped(symbol), blank({40, 40}));
}

TEST(Symbols, SizesArePointsAndHollowShapesAreOpen) {
  Symbol symbol;
  symbol.colour = kInkColour;
  symbol.size = 15;  // 20 pixels; the square takes eight tenths
  symbol.shape = 32;
  EXPECT_EQ(countOf(stamped(symbol), kInk), 16 * 16);
  symbol.shape = 38;
  EXPECT_EQ(stamped(symbol).pixel(20, 20), 0xFFFFFFFF);
  EXPECT_EQ(stamped(symbol).pixel(12, 20), kInk);
}

TEST(Symbols, AnglesTurnCounterClockwise) {
  Symbol arrow;
  arrow.shape = 56;  // points right
  arrow.size = 24;
  Symbol turned = arrow;
  turned.angle = 90;
  Symbol up = arrow;
  up.shape = 53;
  const QImage image = stamped(turned);
  EXPECT_LT(qGray(image.pixel(20, 8)), 100);
  EXPECT_EQ(image.pixel(29, 32), 0xFFFFFFFF);
}

TEST(Symbols, CharactersOfAMissingFontAreDiscs) {
  Symbol character;
  character.shape = 65;
  character.font = "No Such Font";
  Symbol disc;
  disc.shape = 34;
  EXPECT_EQ(stamped(character), stamped(disc));
  character.font = "DejaVu Sans";
  EXPECT_NE(stamped(character), stamped(disc));
}

}  // namespace
}  // namespace motor

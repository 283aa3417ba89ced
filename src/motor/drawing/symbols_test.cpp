#include "motor/drawing/symbols.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <set>
#include <string>

#include "motor/drawing/small_pictures.h"
#include "motor/drawing/symbol_pictures.h"
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

TEST(Symbols, ShadowsAndBordersAddInk) {
  Symbol character;
  character.shape = 0x25CF;  // a disc
  character.font = "DejaVu Sans";
  character.colour = 0xFFFFFF;
  EXPECT_EQ(stamped(character), blank({40, 40}));
  for (const int style : {16, 32}) {
    character.style = style;
    EXPECT_NE(stamped(character), blank({40, 40})) << style;
  }
}

TEST(Symbols, HaveASizeThatCanBeDrawn) {
  Symbol square;
  square.shape = 32;
  square.colour = kInkColour;
  square.size = 1'000'000;
  EXPECT_EQ(countOf(stamped(square), kInk), 40 * 40);
  square.size = 0;
  EXPECT_EQ(stamped(square), blank({40, 40}));
}

// A folder with one picture: red on white, ten pixels wide and high, six of them red.
class SymbolPictures : public ::testing::Test {
 protected:
  SymbolPictures() {
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 2; y < 8; ++y) {
      for (int x = 2; x < 8; ++x) image.setPixel(x, y, 0xFF000000);
    }
    EXPECT_TRUE(QDir(folder_.path()).mkpath("aplicacion/CUSTSYMB"));
    EXPECT_TRUE(image.save(application("CUSTSYMB/casa.BMP")));
    EXPECT_TRUE(image.save(application("casa.bmp")));
    useSymbolsOf(application("").toStdString());
    symbol_.colour = kInkColour;
    symbol_.size = 15;  // 20 pixels
    symbol_.file = "casa.bmp";
  }
  ~SymbolPictures() override { useSymbolsOf({}); }

  [[nodiscard]] QString application(const QString& file) const { return folder_.filePath("aplicacion/" + file); }
  // Whether the disc of an unknown symbol is drawn instead of the picture.
  [[nodiscard]] bool isUnknown(const std::string& file) const {
    Symbol named = symbol_;
    named.file = file;
    Symbol disc = symbol_;
    disc.file.clear();
    disc.shape = 34;
    return stamped(named) == stamped(disc);
  }

  // On a ground that is not white.
  [[nodiscard]] QImage onGround() const {
    return picture({40, 40}, 1, [&](QPainter& painter) {
      painter.fillRect(0, 0, 40, 40, Qt::yellow);
      paintSymbol(painter, symbol_, {20, 20});
    });
  }

  QTemporaryDir folder_;
  Symbol symbol_;
};

TEST_F(SymbolPictures, AreOpenWhereTheyAreWhite) {
  const QImage image = onGround();
  EXPECT_EQ(image.pixel(20, 20), 0xFF000000);
  EXPECT_EQ(image.pixel(11, 11), 0xFFFFFF00);
  symbol_.style = 1;
  EXPECT_EQ(onGround().pixel(11, 11), 0xFFFFFFFF);
}

TEST_F(SymbolPictures, TakeTheSymbolsColour) {
  symbol_.style = 2;
  EXPECT_EQ(onGround().pixel(20, 20), kInk);
}

TEST_F(SymbolPictures, HaveTheSymbolsSizeOrTheirOwn) {
  EXPECT_EQ(onGround().pixel(15, 15), 0xFF000000) << "twelve of twenty pixels are black";
  symbol_.style = 4;
  EXPECT_EQ(onGround().pixel(15, 15), 0xFFFFFF00) << "six of ten are";
  EXPECT_EQ(onGround().pixel(18, 18), 0xFF000000);
}

TEST_F(SymbolPictures, AreReadFromTheirFolderOnly) {
  EXPECT_FALSE(isUnknown("Casa.bmp"));
  const QString picture = application("CUSTSYMB/casa.BMP");
  ASSERT_TRUE(QFile::link(application("casa.bmp"), application("CUSTSYMB/enlace.bmp")));
  ASSERT_TRUE(QFile::link("/dev/zero", application("CUSTSYMB/cero.bmp")));
  for (const std::string& file :
       {std::string("nada.bmp"), std::string("../casa.bmp"), std::string("..\\casa.bmp"), picture.toStdString(),
        std::string("enlace.bmp"), std::string("cero.bmp"), std::string(".."), std::string(".")}) {
    EXPECT_TRUE(isUnknown(file)) << file;
  }
}

TEST_F(SymbolPictures, AreOfTheKindsThatMapsHave) {
  QFile drawing(application("CUSTSYMB/dibujo.bmp"));
  ASSERT_TRUE(drawing.open(QIODevice::WriteOnly));
  drawing.write("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' height='9'/></svg>");
  drawing.close();
  EXPECT_TRUE(isUnknown("dibujo.bmp"));
}

TEST_F(SymbolPictures, AreThoseOfTheApplicationInUse) {
  EXPECT_FALSE(isUnknown("casa.bmp"));
  QDir(folder_.path()).mkpath("otra");
  ASSERT_TRUE(QFile::link(application("CUSTSYMB"), folder_.filePath("otra/CustSymb")));
  useSymbolsOf(folder_.filePath("otra").toStdString());
  EXPECT_TRUE(isUnknown("casa.bmp")) << "a link out of the application";
  useSymbolsOf(folder_.filePath("nada").toStdString());
  EXPECT_TRUE(isUnknown("casa.bmp"));
}

}  // namespace
}  // namespace motor

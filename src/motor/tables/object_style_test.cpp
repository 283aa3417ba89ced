#include "motor/tables/object_style.h"

#include <gtest/gtest.h>

namespace motor {
namespace {

TEST(ObjectStyleTest, readsRegionsAndLines) {
  const ObjectStyle style =
      parseObjectStyle(R"(BRUSH(fc:#ff0000,bc:#0000ff,id:"mapinfo-brush-15,ogr-brush-0");)"
                       R"(PEN(w:3px,c:#0000ff,id:"mapinfo-pen-5,ogr-pen-3",p:"3 1px",cap:r,j:r))");
  EXPECT_EQ(style.brush, (Brush{15, 0xFF0000, 0x0000FF}));
  EXPECT_EQ(style.pen, (Pen{3, 5, 0x0000FF}));
  EXPECT_FALSE(style.isText);
}

TEST(ObjectStyleTest, readsWidthsInPointsAndTransparentBrushes) {
  const ObjectStyle style = parseObjectStyle(
      R"(PEN(w:2pt,c:#00ff00,id:"mapinfo-pen-130,ogr-pen-0");BRUSH(fc:#123456,id:"mapinfo-brush-1,ogr-brush-1"))");
  EXPECT_EQ(style.pen, (Pen{30, 130, 0x00FF00}));
  EXPECT_EQ(style.brush, (Brush{1, 0x123456, kTransparent}));
}

TEST(ObjectStyleTest, readsTheThreeKindsOfSymbols) {
  Symbol plain;
  plain.shape = 35;
  plain.colour = 255;
  plain.size = 14;
  Symbol letter;
  letter.shape = 65;
  letter.colour = 255;
  letter.size = 14;
  letter.font = "Wingdings";
  letter.style = 16;
  letter.angle = 30;
  Symbol picture;
  picture.colour = 255;
  picture.size = 20;
  picture.file = "FLAG-1.BMP";
  picture.style = 2;
  EXPECT_EQ(parseObjectStyle(R"(SYMBOL(a:0,c:#0000ff,s:14pt,id:"mapinfo-sym-35,ogr-sym-9"))").symbol, plain);
  EXPECT_EQ(
      parseObjectStyle(R"(SYMBOL(a:30,c:#0000ff,s:14pt,id:"font-sym-65,ogr-sym-9",o:#000000,f:"Wingdings"))").symbol,
      letter);
  EXPECT_EQ(
      parseObjectStyle(R"(SYMBOL(a:0,c:#0000ff,s:20pt,id:"mapinfo-custom-sym-2-FLAG-1.BMP,bmp-FLAG-1.BMP,ogr-sym-9"))")
          .symbol,
      picture);
}

TEST(ObjectStyleTest, readsTexts) {
  const ObjectStyle style = parseObjectStyle(
      R"(LABEL(t:"Río (\"x\"), a;b",a:45.000000,s:0.69g,c:#0000ff,o:#ffffff,bo:1,un:1,p:1,f:"Tahoma"))");
  EXPECT_TRUE(style.isText);
  EXPECT_EQ(style.text, "Río (\"x\"), a;b");
  EXPECT_DOUBLE_EQ(style.angle, 45);
  EXPECT_DOUBLE_EQ(style.lineHeight, 1);
  EXPECT_EQ(style.font, (Font{"Tahoma", 1 + 4 + 256, 0, 0x0000FF, 0xFFFFFF}));
}

TEST(ObjectStyleTest, survivesEveryCut) {
  const std::string whole =
      R"(PEN(w:2pt,c:#00ff00,id:"mapinfo-pen-130");LABEL(t:"a\"b",s:1g);SYMBOL(id:"font-sym-65",f:"W"))";
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const ObjectStyle style = parseObjectStyle(whole.substr(0, length));
    EXPECT_TRUE(style.pen.pattern == 2 || style.pen.pattern == 1 || style.pen.pattern == 13 ||
                style.pen.pattern == 130);
  }
}

}  // namespace
}  // namespace motor

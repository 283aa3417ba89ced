#include "motor/drawing/halo_text.h"

#include <gtest/gtest.h>

#include "motor/drawing/small_pictures.h"

namespace motor {
namespace {

constexpr QRgb kBlackPixel = 0xFF000000;
constexpr QRgb kYellowPixel = 0xFFFFFF00;
constexpr Colour kYellow = 0xFFFF00;

// Letters on a black ground.
QImage written(const Font& font, const QStringList& lines = {"Ala"}) {
  return small::picture({80, 50}, 1, [&](QPainter& painter) {
    painter.fillRect(0, 0, 80, 50, Qt::black);
    HaloText(lines, font).paint(painter, {10, 10}, Qt::AlignHCenter);
  });
}

Font font(int style, Colour back) { return {"Verdana", style, 12, 0x102030, back}; }

TEST(HaloText, DarkLettersAreLegibleOnADarkGround) {
  EXPECT_LT(small::countOf(written(font(0, kTransparent)), kBlackPixel), 80 * 50 - 200);
}

TEST(HaloText, AHaloHasItsColourAndIsWhiteWithoutOne) {
  EXPECT_GT(small::countOf(written(font(256, kYellow)), kYellowPixel), 50);
  EXPECT_GT(small::countOf(written(font(256, kTransparent)), 0xFFFFFFFF), 50);
}

TEST(HaloText, LinesStandSoFarApart) {
  const auto height = [](const QStringList& lines, double spacing) {
    return HaloText(lines, font(0, kTransparent), 20, spacing).size().height();
  };
  const double line = height({"a"}, 1);
  EXPECT_DOUBLE_EQ(height({"a"}, 2), line);
  EXPECT_DOUBLE_EQ(height({"a", "b"}, 1), 2 * line);
  EXPECT_DOUBLE_EQ(height({"a", "b", "c"}, 1.5), 4 * line);
}

TEST(HaloText, ABoxIsFilledFromEdgeToEdge) {
  const HaloText text({"Ala"}, font(0, kYellow));
  EXPECT_GT(text.size().width(), HaloText({"Ala"}, font(0, kTransparent)).size().width() + 4);
  const QImage image = written(font(0, kYellow));
  const QRect box(11, 11, static_cast<int>(text.size().width()) - 2, static_cast<int>(text.size().height()) - 2);
  EXPECT_EQ(small::countOf(image.copy(box), kBlackPixel), 0);
  EXPECT_EQ(image.pixel(box.topLeft()), kYellowPixel);
  EXPECT_EQ(image.pixel(box.bottomRight()), kYellowPixel);
  EXPECT_EQ(image.pixel(8, 8), kBlackPixel);
}

TEST(HaloText, AShadowLiesBelowTheLetters) {
  const auto onWhite = [](int style) {
    return small::picture({80, 50}, 1, [&](QPainter& painter) {
      HaloText({"Ala"}, font(style, 0xFFFFFF)).paint(painter, {10, 10}, Qt::AlignLeft);
    });
  };
  EXPECT_NE(onWhite(32), onWhite(0));
  EXPECT_EQ(small::countOf(onWhite(32), small::kInk), small::countOf(onWhite(0), small::kInk)) << "none on the letters";
}

TEST(HaloText, TakesWhatAMapHasRoomFor) {
  const QSizeF one = HaloText({QString(5000, 'm')}, font(0, kTransparent)).size();
  const QSizeF other = HaloText({QString(90'000, 'm')}, font(0, kTransparent)).size();
  EXPECT_EQ(one, other);
  const QStringList lines(90'000, QStringLiteral("a"));
  EXPECT_LT(HaloText(lines, font(0, kTransparent)).size().height(), 2000);
}

}  // namespace
}  // namespace motor

#include "picture_comparison.h"

#include <gtest/gtest.h>

namespace pictures {
namespace {

QImage plain(int width, int height, QRgb colour) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

TEST(PictureComparison, EqualPicturesDoNotDiffer) {
  EXPECT_EQ(compare(plain(20, 10, qRgb(9, 90, 200)), plain(20, 10, qRgb(9, 90, 200))).share, 0);
}

TEST(PictureComparison, AShadeIsNoDifference) {
  EXPECT_EQ(compare(plain(20, 10, qRgb(100, 100, 100)), plain(20, 10, qRgb(120, 80, 139))).share, 0);
  EXPECT_EQ(compare(plain(20, 10, qRgb(100, 100, 100)), plain(20, 10, qRgb(100, 141, 100))).share, 1);
}

TEST(PictureComparison, OtherPixelsAreCountedAndShownInRed) {
  QImage actual = plain(20, 10, qRgb(255, 255, 255));
  actual.setPixel(3, 4, qRgb(0, 0, 0));
  actual.setPixel(5, 4, qRgb(0, 0, 0));
  const Difference difference = compare(plain(20, 10, qRgb(255, 255, 255)), actual);
  EXPECT_DOUBLE_EQ(difference.share, 2.0 / 200);
  EXPECT_EQ(difference.map.pixel(3, 4), qRgb(220, 0, 0));
  EXPECT_EQ(difference.map.pixel(4, 4), qRgb(255, 255, 255));
}

TEST(PictureComparison, OtherSizesAreWhollyOther) {
  EXPECT_EQ(compare(plain(20, 10, 0), plain(10, 20, 0)).share, 1);
  EXPECT_EQ(compare(QImage(), QImage()).share, 1);
}

}  // namespace
}  // namespace pictures

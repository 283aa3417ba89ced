#include "picture_comparison.h"

#include <gtest/gtest.h>

#include <QFont>
#include <QPainter>

namespace pictures {
namespace {

QImage plain(int width, int height, QRgb colour) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

// A page as windows are painted: smooth edges, small words.
QImage page(const QString& word, double wordLeft = 20, const QColor& paper = Qt::white, const QColor& ink = Qt::black) {
  QImage image = plain(200, 60, paper.rgb());
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ink, 1.5));
  painter.drawLine(QPointF(5, 50), QPointF(190, 41));
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(11);
  painter.setFont(font);
  painter.drawText(QPointF(wordLeft, 20), word);
  return image;
}

bool isAlike(const QImage& expected, const QImage& actual) {
  const Tolerance tolerance;
  return compare(expected, actual, tolerance).share <= tolerance.share;
}

TEST(PictureComparison, EqualPicturesDoNotDiffer) {
  EXPECT_EQ(compare(plain(20, 10, qRgb(9, 90, 200)), plain(20, 10, qRgb(9, 90, 200))).share, 0);
}

TEST(PictureComparison, AShadeIsNoDifferenceAndAColourIs) {
  EXPECT_EQ(compare(plain(20, 10, qRgb(100, 100, 100)), plain(20, 10, qRgb(112, 88, 105))).share, 0);
  EXPECT_EQ(compare(plain(20, 10, qRgb(100, 100, 100)), plain(20, 10, qRgb(100, 113, 100))).share, 1);
}

TEST(PictureComparison, EdgesMayBeSmoothedOtherwise) {
  const QImage smooth = page(QStringLiteral("Salir"));
  QImage other = smooth;
  for (int y = 0; y < other.height(); ++y) {
    for (int x = 0; x < other.width(); ++x) {
      const int grey = qGray(other.pixel(x, y));
      if (grey > 0 && grey < 255) other.setPixel(x, y, qRgb(grey * 9 / 10, grey * 9 / 10, grey * 9 / 10));
    }
  }
  EXPECT_NE(smooth, other);
  EXPECT_TRUE(isAlike(smooth, other));
}

TEST(PictureComparison, SeesAWordThatIsMissingOtherOrElsewhere) {
  const QImage whole = page(QStringLiteral("Salir"));
  EXPECT_FALSE(isAlike(whole, page(QString())));
  EXPECT_FALSE(isAlike(page(QString()), whole));
  EXPECT_FALSE(isAlike(whole, page(QStringLiteral("Sa1ir"))));
  EXPECT_FALSE(isAlike(whole, page(QStringLiteral("Salir"), 23)));
  EXPECT_FALSE(isAlike(whole, page(QStringLiteral("Salir."))));
}

TEST(PictureComparison, SeesOtherColours) {
  const QImage whole = page(QStringLiteral("Salir"));
  EXPECT_FALSE(isAlike(whole, page(QStringLiteral("Salir"), 20, QColor(255, 255, 240))));
  EXPECT_FALSE(isAlike(whole, page(QStringLiteral("Salir"), 20, Qt::white, QColor(0, 0, 90))));
}

TEST(PictureComparison, OtherPixelsAreCountedAndShownInRed) {
  QImage actual = plain(20, 10, qRgb(255, 255, 255));
  actual.setPixel(3, 4, qRgb(0, 0, 0));
  actual.setPixel(9, 4, qRgb(0, 0, 0));
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

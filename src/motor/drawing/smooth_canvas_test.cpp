#include "motor/drawing/smooth_canvas.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainterPath>
#include <QPicture>
#include <cmath>
#include <random>

// What the canvas paints, beside what the toolkit's painter does.
namespace motor {
namespace {

constexpr QSize kSize(160, 120);
constexpr QRgb kOchre = 0xFFC08030;
constexpr QRgb kInk = 0xFF203040;

QImage whitePicture(double devicePixelRatio = 1, QSize size = kSize) {
  QImage picture((QSizeF(size) * devicePixelRatio).toSize(), QImage::Format_RGB32);
  picture.setDevicePixelRatio(devicePixelRatio);
  picture.fill(Qt::white);
  return picture;
}

// Closed rings with corners anywhere in and around the picture, which cross themselves and each other.
std::vector<QPolygonF> anyRings(unsigned seed) {
  std::mt19937 numbers(seed);
  std::uniform_real_distribution<double> x(-60, kSize.width() + 60);
  std::uniform_real_distribution<double> y(-60, kSize.height() + 60);
  std::vector<QPolygonF> rings(1 + seed % 3);
  for (QPolygonF& ring : rings) {
    for (int i = 0; i < 3 + static_cast<int>(seed % 9); ++i) {
      const double left = x(numbers);  // before the other: compilers take arguments in different orders
      ring << QPointF(left, y(numbers));
    }
    ring << ring.front();
  }
  return rings;
}

// A ring without sharp corners.
QPolygonF roundRing(QPointF middle, double radius) {
  constexpr int kCorners = 40;
  QPolygonF ring;
  for (int i = 0; i <= kCorners; ++i) {
    const double angle = 2 * M_PI * i / kCorners;
    ring << middle + QPointF(std::cos(angle), std::sin(angle)) * radius;
  }
  return ring;
}

QImage paintedByCanvas(const std::vector<QPolygonF>& rings, const SmoothCanvas::Style& style, double ratio = 1,
                       QSize size = kSize) {
  QImage picture = whitePicture(ratio, size);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  std::optional<SmoothCanvas> canvas = SmoothCanvas::of(painter);
  EXPECT_TRUE(canvas);
  canvas->add(rings, style);
  canvas->paint();
  return picture;
}

// What the painter does on a picture `finer` times as fine, whose own rounding then counts less.
QImage paintedByPainter(const std::vector<QPolygonF>& rings, const SmoothCanvas::Style& style, double ratio,
                        int finer) {
  QImage picture = whitePicture(ratio * finer);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath path;
  for (const QPolygonF& ring : rings) path.addPolygon(ring);
  if (style.fill) painter.fillPath(path, QColor::fromRgba(*style.fill));
  if (style.border) {
    painter.strokePath(
        path, QPen(QColor::fromRgba(*style.border), style.borderWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
  painter.end();
  return picture.scaled(picture.size() / finer, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

struct Difference {
  int most = 0;     // of 255, in a channel of a pixel
  double mean = 0;  // over the pixels that either painted
};

Difference differenceOf(const QImage& a, const QImage& b) {
  Difference difference;
  double sum = 0;
  int painted = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb one = a.pixel(x, y);
      const QRgb other = b.pixel(x, y);
      const int apart = std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                                  std::abs(qBlue(one) - qBlue(other))});
      difference.most = std::max(difference.most, apart);
      if (one == 0xFFFFFFFF && other == 0xFFFFFFFF) continue;
      sum += apart;
      ++painted;
    }
  }
  difference.mean = painted == 0 ? 0 : sum / painted;
  return difference;
}

TEST(SmoothCanvas, FillsAsThePainterDoes) {
  double sumOfMeans = 0;
  int pictures = 0;
  for (unsigned seed = 0; seed < 60; ++seed) {
    const std::vector<QPolygonF> rings = anyRings(seed);
    for (const double ratio : {1.0, 1.25, 1.5, 3.0}) {
      const SmoothCanvas::Style style{.fill = kOchre};
      const Difference difference =
          differenceOf(paintedByCanvas(rings, style, ratio), paintedByPainter(rings, style, ratio, 1));
      // Where edges cross in a pixel, both add up what they cover on either side.
      EXPECT_LE(difference.most, 12) << "seed " << seed << ", ratio " << ratio;
      EXPECT_LE(difference.mean, 1.5) << "seed " << seed << ", ratio " << ratio;  // of slivers, which are all edge
      sumOfMeans += difference.mean;
      ++pictures;
    }
  }
  EXPECT_LE(sumOfMeans / pictures, 0.1);
}

TEST(SmoothCanvas, BordersAsThePainterDoes) {
  for (const double width : {1.0, 1.5, 2.0, 3.0, 6.0}) {
    for (const double ratio : {1.0, 2.0}) {
      const std::vector<QPolygonF> rings = {roundRing({80.3, 60.7}, 41.2), roundRing({20, 30}, 13)};
      const SmoothCanvas::Style style{.border = kInk, .borderWidth = width};
      const Difference difference =
          differenceOf(paintedByCanvas(rings, style, ratio), paintedByPainter(rings, style, ratio, 8));
      EXPECT_LE(difference.most, 40) << width << " wide, ratio " << ratio;
      EXPECT_LE(difference.mean, 8) << width << " wide, ratio " << ratio;
    }
  }
}

TEST(SmoothCanvas, SharpCornersOfABroadBorderAreRound) {
  const std::vector<QPolygonF> rings = {QPolygonF({{30, 100}, {80, 20}, {130, 100}, {30, 100}})};
  const SmoothCanvas::Style style{.border = kInk, .borderWidth = 7};
  const Difference difference = differenceOf(paintedByCanvas(rings, style), paintedByPainter(rings, style, 1, 8));
  EXPECT_LE(difference.most, 60);
}

TEST(SmoothCanvas, BlendsTranslucentColours) {
  const std::vector<QPolygonF> rings = {QPolygonF(QRectF(10, 10, 50, 50))};
  const SmoothCanvas::Style style{.fill = qRgba(0, 0, 0, 128)};
  EXPECT_NEAR(qRed(paintedByCanvas(rings, style).pixel(30, 30)), 127, 1);
}

TEST(SmoothCanvas, PaintsInTheOrderInWhichShapesWereAdded) {
  QImage picture = whitePicture();
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  std::optional<SmoothCanvas> canvas = SmoothCanvas::of(painter);
  ASSERT_TRUE(canvas);
  const auto square = [](double at) { return std::vector<QPolygonF>{QPolygonF(QRectF(at, at, 60, 60))}; };
  canvas->add(square(10), {.fill = kOchre});
  canvas->add(square(30), {.fill = kInk});
  EXPECT_EQ(picture.pixel(40, 40), 0xFFFFFFFF) << "nothing is painted before it is asked for";
  canvas->paint();
  EXPECT_EQ(picture.pixel(20, 20), kOchre);
  EXPECT_EQ(picture.pixel(40, 40), kInk);
  picture.fill(Qt::white);
  canvas->paint();
  EXPECT_EQ(picture.pixel(40, 40), 0xFFFFFFFF) << "what was painted is not painted again";
}

// Many shapes are painted in bands by several cores, few by one: the picture is the same.
TEST(SmoothCanvas, ManyShapesLookAsOneByOne) {
  QImage together = whitePicture(2);
  QImage alone = whitePicture(2);
  const auto paintAll = [](QImage& picture, bool oneByOne) {
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    std::optional<SmoothCanvas> canvas = SmoothCanvas::of(painter);
    for (unsigned i = 0; i < 300; ++i) {
      const QPointF middle(i * 37 % 160, i * 53 % 120);
      canvas->add({roundRing(middle, 5 + i % 20)},
                  {.fill = qRgb(static_cast<int>(i % 256), 90, 120), .border = kInk, .borderWidth = 1.0 + i % 3});
      if (oneByOne) canvas->paint();
    }
    canvas->paint();
  };
  paintAll(together, false);
  paintAll(alone, true);
  EXPECT_EQ(together, alone);
}

TEST(SmoothCanvas, LeavesAllElseToThePainter) {
  QImage picture = whitePicture();
  QPainter painter(&picture);
  EXPECT_FALSE(SmoothCanvas::of(painter)) << "without smooth edges";
  painter.setRenderHint(QPainter::Antialiasing);
  EXPECT_TRUE(SmoothCanvas::of(painter));
  painter.save();
  painter.rotate(3);
  EXPECT_FALSE(SmoothCanvas::of(painter)) << "turned";
  painter.restore();
  painter.save();
  painter.scale(1, 2);
  EXPECT_FALSE(SmoothCanvas::of(painter)) << "stretched";
  painter.restore();
  painter.save();
  painter.setClipRect(QRect(0, 0, 20, 20));
  EXPECT_FALSE(SmoothCanvas::of(painter)) << "clipped";
  painter.restore();
  painter.setCompositionMode(QPainter::CompositionMode_Multiply);
  EXPECT_FALSE(SmoothCanvas::of(painter)) << "mixed otherwise";
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter.setOpacity(0.5);
  EXPECT_FALSE(SmoothCanvas::of(painter)) << "translucent";
  QImage withAlpha(kSize, QImage::Format_ARGB32_Premultiplied);
  QPainter onAlpha(&withAlpha);
  onAlpha.setRenderHint(QPainter::Antialiasing);
  EXPECT_FALSE(SmoothCanvas::of(onAlpha));
  QPicture vectors;
  QPainter onVectors(&vectors);
  onVectors.setRenderHint(QPainter::Antialiasing);
  EXPECT_FALSE(SmoothCanvas::of(onVectors));
}

TEST(SmoothCanvas, PaintsAtOnceWhereTooMuchWouldWait) {
  QImage picture = whitePicture();
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  std::optional<SmoothCanvas> canvas = SmoothCanvas::of(painter);
  ASSERT_TRUE(canvas);
  const std::vector<QPolygonF> squares(100'000, QPolygonF(QRectF(10, 10, 5, 5)));
  for (int i = 0; i < 4; ++i) {
    canvas->add(squares, {.border = kInk, .borderWidth = 2});
    canvas->add({QPolygonF(QRectF(40, 40, 20, 20))}, {.fill = kOchre});
  }
  EXPECT_EQ(picture.pixel(50, 50), kOchre);
}

// A single edge from one end of a wide picture to the other: rounding must not add up on the way.
TEST(SmoothCanvas, LongEdgesAreExactToTheirEnds) {
  constexpr int kWidth = 20'000;
  constexpr int kStep = 97;
  for (const double drop : {0.3, 1.0, 10.0, 60.0}) {
    const std::vector<QPolygonF> rings = {
        QPolygonF({{-10, 20}, {kWidth + 10, 20 + drop}, {kWidth + 10, 95}, {-10, 95}, {-10, 20}})};
    const auto edgeAt = [&](double x) { return 20 + drop * (x + 10) / (kWidth + 20); };
    const QImage filled = paintedByCanvas(rings, {.fill = qRgb(0, 0, 0)}, 1, {kWidth, 100});
    const QImage bordered = paintedByCanvas(rings, {.border = qRgb(0, 0, 0), .borderWidth = 2}, 1, {kWidth, 100});
    for (int x = 0; x < kWidth; x += kStep) {
      const double edge = edgeAt(x + 0.5);
      const int row = static_cast<int>(edge);
      const double above = std::max(0.0, edge - row);
      EXPECT_NEAR(qRed(filled.pixel(x, row)), 255 * above, 2) << drop << ' ' << x;
      const double covered = std::clamp(1.5 - std::fabs(row - 1 + 0.5 - edge), 0.0, 1.0);
      EXPECT_NEAR(qRed(bordered.pixel(x, row - 1)), 255 * (1 - covered), 2) << drop << ' ' << x;
    }
  }
}

TEST(SmoothCanvas, TakesShapesThatAreNowhere) {
  const SmoothCanvas::Style style{.fill = kOchre, .border = kInk, .borderWidth = 2};
  const std::vector<std::vector<QPolygonF>> shapes = {
      {}, {QPolygonF()}, {QPolygonF(1)}, {QPolygonF(2)}, {QPolygonF(), QPolygonF(1)}};
  for (const auto& rings : shapes) EXPECT_EQ(paintedByCanvas(rings, style), whitePicture());
}

TEST(SmoothCanvas, TakesShapesThatAreFarOrHuge) {
  const SmoothCanvas::Style style{.fill = kOchre, .border = kInk, .borderWidth = 2};
  for (const double far : {1e4, 1e6, 1e12, 1e60}) {
    EXPECT_EQ(paintedByCanvas({QPolygonF(QRectF(-far, -far, far / 2, far / 2))}, style), whitePicture()) << far;
    QImage allOver = whitePicture();
    allOver.fill(kOchre);
    EXPECT_EQ(paintedByCanvas({QPolygonF(QRectF(-far, -far, 2 * far, 2 * far))}, style), allOver) << far;
    const QImage half = paintedByCanvas({QPolygonF({{-far, 30}, {far, 30}, {far, far}, {-far, far}})}, style);
    EXPECT_EQ(half.pixel(80, 28), 0xFFFFFFFF) << far;
    EXPECT_EQ(half.pixel(80, 30), kInk) << far;
    EXPECT_EQ(half.pixel(80, 60), kOchre) << far;
  }
}

TEST(SmoothCanvas, AShapeWithoutAnInsideHasItsBorder) {
  const QImage line =
      paintedByCanvas({QPolygonF({{5, 5}, {90, 5}, {5, 5}})}, {.fill = kOchre, .border = kInk, .borderWidth = 2});
  EXPECT_EQ(line.pixel(40, 4), kInk);
  EXPECT_EQ(line.pixel(40, 8), 0xFFFFFFFF);
}

TEST(SmoothCanvas, PicturesMayBeAsSmallAsAPixel) {
  const std::vector<QPolygonF> rings = {QPolygonF(QRectF(-50, -50, 30'000, 30'000))};
  for (const QSize size : {QSize(1, 1), QSize(1, 500), QSize(500, 1), QSize(20'000, 3)}) {
    QImage allOver = whitePicture(1, size);
    allOver.fill(kOchre);
    EXPECT_EQ(paintedByCanvas(rings, {.fill = kOchre, .border = kInk}, 1, size), allOver);
  }
}

}  // namespace
}  // namespace motor

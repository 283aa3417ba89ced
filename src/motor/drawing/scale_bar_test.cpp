#include "motor/drawing/scale_bar.h"

#include <gtest/gtest.h>

#include <QImage>

namespace motor {
namespace {

TEST(ScaleBar, TakesTheLongestRoundDistance) {
  struct Case {
    double metresPerPixel;
    double metres;
    const char* text;
  };
  for (const Case& c : {Case{500, 50000, "50 km"}, Case{100, 10000, "10 km"}, Case{1, 100, "100 m"},
                        Case{0.99, 50, "50 m"}, Case{0.004, 0.2, "0,2 m"}, Case{21, 2000, "2 km"}}) {
    const ScaleBar bar = scaleBarFor(c.metresPerPixel, 100);
    EXPECT_DOUBLE_EQ(bar.metres, c.metres) << c.metresPerPixel;
    EXPECT_LE(bar.pixels, 100.0001);
    EXPECT_EQ(bar.text.toStdString(), c.text);
  }
  EXPECT_EQ(scaleBarFor(0, 100).pixels, 0);
}

TEST(ScaleBar, IsReadOnALightPlateOverAnyMap) {
  const ScaleBar bar = scaleBarFor(500, 100);
  const QRectF plate = scaleBarPlate(bar, {8, 92});
  EXPECT_EQ(plate.bottomLeft(), QPointF(8, 92));
  EXPECT_GE(plate.width(), bar.pixels);
  QImage image(160, 100, QImage::Format_RGB32);
  image.fill(Qt::darkBlue);
  QPainter painter(&image);
  paintScaleBar(painter, bar, {8, 92});
  painter.end();
  EXPECT_GE(qGray(image.pixel(QPoint(12, 89))), 190) << "the plate";
  EXPECT_EQ(image.pixelColor(4, 89), QColor(Qt::darkBlue)) << "the map beside it";
  EXPECT_TRUE(scaleBarPlate(scaleBarFor(0, 100), {8, 92}).isEmpty());
}

}  // namespace
}  // namespace motor

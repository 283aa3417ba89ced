#include "motor/window/export/map_export.h"

#include <QSvgRenderer>

#include "motor/window/export/map_mime_data.h"
#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

class Export : public MapWidgetTest {
 protected:
  Export() { session_->run("set map zoom entire set map layer 1 display global global brush (2, 255)"); }
};

TEST_F(Export, AnImageIsTwiceAsFineAsTheScreen) {
  const QImage image = mapAsImage(map(), {400, 300});
  EXPECT_EQ(image.size(), QSize(800, 600));
  EXPECT_EQ(qRound(image.dotsPerMeterX() * 0.0254), 192);
  const QPoint inside = pixelOf({-3.5, 42}) * 2;
  EXPECT_EQ(image.pixelColor(inside), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(799, 300), QColor(Qt::white));
}

TEST_F(Export, SvgShowsTheSamePicture) {
  QSvgRenderer renderer(mapAsSvg(map(), {400, 300}));
  ASSERT_TRUE(renderer.isValid());
  EXPECT_EQ(renderer.viewBox(), QRect(0, 0, 400, 300));
  QImage image(400, 300, QImage::Format_RGB32);
  image.fill(Qt::red);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  EXPECT_EQ(image.pixelColor(pixelOf({-3.5, 42})), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(399, 150), QColor(Qt::white));
}

TEST_F(Export, PdfHasOnePageOfTheMapsSize) {
  const QByteArray pdf = mapAsPdf(map(), {400, 300});
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_TRUE(pdf.contains("/Count 1"));
  EXPECT_TRUE(pdf.contains("/MediaBox [0 0 300"));
}

TEST_F(Export, EachFormIsMadeOfTheMapAsItWas) {
  const MapMimeData data(map(), {400, 300});
  session_->run("set map zoom 10 units \"km\"");
  EXPECT_TRUE(data.hasImage());
  EXPECT_FALSE(data.hasUrls()) << "there is no file";
  EXPECT_EQ(qvariant_cast<QImage>(data.imageData()).pixelColor(10, 10), QColor(Qt::white));
  EXPECT_TRUE(data.data("image/png").startsWith("\x89PNG"));
  EXPECT_TRUE(data.data("image/svg+xml").contains("<svg"));
  EXPECT_TRUE(data.data("application/pdf").startsWith("%PDF-"));
  EXPECT_TRUE(data.data("text/plain").isEmpty());
}

}  // namespace
}  // namespace motor

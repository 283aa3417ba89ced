#include <QDrag>
#include <QMimeData>

#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

using TakingOut = MapWidgetTest;

// Where nothing can be dropped the toolkit's drag is over at once; it stays the map's until the events are worked off.
TEST_F(TakingOut, ADragCarriesTheMapsPicture) {
  widget_->show();
  (void)picture();
  session_->run("run menu command 1734");
  pull({200, 150}, {240, 180});
  const auto* drag = widget_->findChild<QDrag*>();
  ASSERT_NE(drag, nullptr);
  EXPECT_EQ(drag->mimeData()->formats().join(' '), "application/pdf image/svg+xml image/png application/x-qt-image");
  EXPECT_EQ(qvariant_cast<QImage>(drag->mimeData()->imageData()).size(), QSize(800, 600));
  EXPECT_EQ(drag->pixmap().size(), QSize(180, 135));
  EXPECT_EQ(drag->supportedActions(), Qt::CopyAction);
  QTest::mouseRelease(widget_, Qt::LeftButton, {}, {240, 180});
}

TEST_F(TakingOut, AClickTakesNothing) {
  session_->run("run menu command 1734");
  click({200, 150});
  pull({200, 150}, {202, 150});
  EXPECT_EQ(widget_->findChild<QDrag*>(), nullptr);
  QTest::mouseRelease(widget_, Qt::LeftButton, {}, {202, 150});
}

}  // namespace
}  // namespace motor

#include "hosts/desktop/drawn_size.h"

#include <gtest/gtest.h>

#include <QRadioButton>

#include "hosts/desktop/qt_host.h"
#include "hosts/desktop/test_form.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/twips.h"
#include "hosts/desktop/user_hands.h"
#include "hosts/desktop/window_placement.h"

namespace desktop {
namespace {

class OwnScale : public ::testing::Test {
 protected:
  OwnScale() { setOwnScale(0.75); }
  ~OwnScale() override { setOwnScale(1); }
};

TEST(DrawnSize, TheToolkitNeverPaintsLessThanOneDevicePixelALogicalPixel) {
  for (const double ratio : {0.5, 0.8, 1.0, 1.25, 1.5, 2.0, 3.0}) {
    for (const QSize pixels :
         {QSize(640, 480), QSize(800, 600), QSize(1024, 600), QSize(1440, 900), QSize(1920, 1080)}) {
      const QSize screen = (QSizeF(pixels) / ratio).toSize();
      const DrawnSize size = drawnSizeFor(screen, ratio);
      EXPECT_GE(ratio * size.toolkit, 1 - 1e-9) << ratio << " at " << pixels.width();
      EXPECT_NEAR(size.toolkit * size.own, scaleFor(screen), 1e-9) << ratio << " at " << pixels.width();
      EXPECT_LE(size.own, 1);
    }
  }
}

TEST(DrawnSize, IsTheUsualOneWhereThereIsRoom) {
  for (const double ratio : {1.0, 1.25, 2.0}) {
    EXPECT_EQ(drawnSizeFor({1920, 1080}, ratio).toolkit, 1);
    EXPECT_EQ(drawnSizeFor({1920, 1080}, ratio).own, 1);
  }
}

TEST(DrawnSize, ASmallScreenHoldsTheWorkingWindowWithItsFrame) {
  for (const QSize screen : {QSize(800, 600), QSize(1024, 600), QSize(640, 480)}) {
    setOwnScale(drawnSizeFor(screen, 1).own);
    const QRect place = firstPlace(screen::FormLook::window, {scaled(1024), scaled(768)}, {QPoint(0, 0), screen});
    setOwnScale(1);
    EXPECT_LE(place.width() + 16, screen.width());
    EXPECT_LE(place.height() + 40, screen.height());
  }
}

TEST_F(OwnScale, LengthsAndLettersAreDrawnSmallerAndThoseOfPaperAreNot) {
  EXPECT_EQ(toPixels(1500), 75);
  EXPECT_EQ(toTwips(75), 1500);
  EXPECT_EQ(theme::font({.name = "Verdana", .points = 9}).pixelSize(), 9);
  EXPECT_EQ(theme::paperFont({.name = "Verdana", .points = 9}).pixelSize(), 12);
}

TEST_F(OwnScale, AFormAndItsControlsShrinkTogether) {
  screen::ProgramCalls calls;
  motor::WidgetHandles handles;
  QtHost host(calls, handles);
  testing::TestForm form(host);
  form.show();
  hands::settle();
  const FormWindow& window = *host.windowOf(form);
  EXPECT_EQ(window.minimumSize(), QSize(750, 510));
  EXPECT_EQ(window.findChild<QWidget*>("Ficha")->width(), 225);
  const auto& option = *window.findChild<QRadioButton*>("OptIzquierda");
  EXPECT_EQ(option.width(), 90);
  EXPECT_EQ(option.font().pixelSize(), theme::font(form.left.font).pixelSize());
  host.windowOf(form)->resize(900, 600);
  hands::settle();
  EXPECT_EQ(form.width(), window.frameGeometry().width() * 20);
  EXPECT_EQ(form.height(), window.frameGeometry().height() * 20);
  host.closeAll();
}

}  // namespace
}  // namespace desktop

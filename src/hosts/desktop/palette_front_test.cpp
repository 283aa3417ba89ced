#include "hosts/desktop/palette_front.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>

#include "hosts/desktop/user_hands.h"

namespace desktop {
namespace {

// Counts how often a window is brought to the front.
class Raises : public QObject {
 public:
  explicit Raises(QWidget& window) { window.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::ZOrderChange) ++count;
    return false;
  }
  int count = 0;
};

class Fronts : public ::testing::Test {
 protected:
  Fronts() {
    new PaletteFront(palette);  // owned by the palette
    owner.show();
    palette.show();
    hands::settle();
    raises.count = 0;
  }

  QWidget owner;
  QWidget map{&owner};
  QWidget palette{&owner, Qt::Tool};
  QWidget legend{&map, Qt::Tool};
  Raises raises{palette};
};

TEST_F(Fronts, ThePaletteComesBeforeALegendThatIsShownOrUsed) {
  legend.show();
  hands::settle();
  EXPECT_GT(raises.count, 0);
  raises.count = 0;
  QEvent used(QEvent::WindowActivate);
  QCoreApplication::sendEvent(&legend, &used);
  hands::settle();
  EXPECT_GT(raises.count, 0);
}

TEST_F(Fronts, OtherWindowsLeaveItWhereItIs) {
  QWidget stranger(nullptr, Qt::Tool);
  stranger.show();
  QWidget dialog(&owner, Qt::Dialog);
  dialog.show();
  hands::settle();
  EXPECT_EQ(raises.count, 0);
}

}  // namespace
}  // namespace desktop

#include <QDialog>

#include "hosts/desktop/shown_form.h"

namespace desktop {
namespace {

// A label to click is lit while the pointer is on it, whatever the toolkit tells of the pointer's leaving.
class Light : public testing::ShownForm {
 protected:
  void SetUp() override {
    ShownForm::SetUp();
    form.popUp.setVisible(true);
    dark_ = picture();
    enter(widget(form.entry));
    ASSERT_TRUE(isLit());
  }
  static void enter(QWidget& widget) {
    const QPointF at = QRectF(widget.rect()).center();
    QEnterEvent event(at, widget.mapTo(widget.window(), at), widget.mapToGlobal(at));
    QCoreApplication::sendEvent(&widget, &event);
  }
  [[nodiscard]] bool isLit() { return picture() != dark_; }

 private:
  [[nodiscard]] QImage picture() { return widget(form.entry).grab().toImage(); }
  QImage dark_;
};

TEST_F(Light, GoesOutWhenThePointerIsOnAnotherWidget) {
  enter(widget(form.tree));
  EXPECT_FALSE(isLit());
}

TEST_F(Light, StaysWhileThePointerMovesOnIt) {
  hands::pointAt(widget(form.entry));
  EXPECT_TRUE(isLit());
}

TEST_F(Light, GoesOutUnderADialog) {
  QDialog dialog(&window());
  dialog.setModal(true);
  dialog.show();
  hands::settle();
  EXPECT_FALSE(isLit());
}

TEST_F(Light, GoesOutWhenTheWindowIsLeftOrHidden) {
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&window(), &leave);
  EXPECT_FALSE(isLit());
  enter(widget(form.entry));
  window().showMinimized();
  hands::settle();
  window().hide();
  EXPECT_FALSE(isLit());
}

TEST_F(Light, GoesOutWhenThePointerIsDraggedOffThePressedLabel) {
  QWidget& entry = widget(form.entry);
  QTest::mousePress(&entry, Qt::LeftButton);
  QMouseEvent drag(QEvent::MouseMove, QPointF(5, 300), entry.mapToGlobal(QPointF(5, 300)), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QCoreApplication::sendEvent(&entry, &drag);
  EXPECT_FALSE(isLit());
}

}  // namespace
}  // namespace desktop

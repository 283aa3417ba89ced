#include <QDialog>

#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

using MapWindows = MapWidgetTest;

TEST_F(MapWindows, ANewMapIsHiddenAndKnownByItsHandle) {
  EXPECT_FALSE(widget_->isVisible());
  EXPECT_EQ(widget_->parentWidget(), nullptr);
  EXPECT_EQ(handles_.widget(window().handle()), widget_);
  EXPECT_EQ(session_->eval("WindowInfo(WindowID(1), 12)").text(), std::to_string(window().handle()));
  EXPECT_EQ(widget_->accessibleName(), "Mapa");
}

TEST_F(MapWindows, AMaximizedMapFillsTheWindowItLiesIn) {
  QWidget frame;
  frame.resize(640, 420);
  widget_->setParent(&frame);
  session_->run("set window " + std::to_string(window().id()) + "Max");
  EXPECT_EQ(widget_->geometry(), QRect(0, 0, 640, 420));
  EXPECT_EQ(map().pixelWidth, 640);
  frame.show();
  frame.resize(320, 200);
  EXPECT_EQ(widget_->size(), QSize(320, 200));
  EXPECT_EQ(map().pixelHeight, 200);
  QWidget other;
  other.resize(222, 111);
  widget_->setParent(&other);
  EXPECT_EQ(widget_->size(), QSize(222, 111));
  widget_->setParent(nullptr);
}

TEST_F(MapWindows, EndingTheSessionTakesItsWindowsAway) {
  const std::int64_t handle = window().handle();
  widget_->show();
  session_.reset();
  (void)widget_->grab();  // a last expose finds no map
  EXPECT_FALSE(widget_->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(widget_.isNull());
  EXPECT_EQ(handles_.widget(handle), nullptr);
}

TEST_F(MapWindows, CommandsWithADialogShowItAndKeepNobodyWaiting) {
  widget_->show();
  for (const auto& [code, title] :
       {std::pair(112, "Imprimir el mapa"), std::pair(801, "Control de capas"), std::pair(807, "Ver toda la capa")}) {
    EXPECT_TRUE(windows_.command(window(), code)) << code;
    const QPointer<QDialog> dialog = widget_->findChild<QDialog*>();
    ASSERT_FALSE(dialog.isNull()) << code;
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(dialog->isModal());
    EXPECT_EQ(dialog->windowTitle(), title);
    dialog->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(dialog.isNull()) << code;
  }
  EXPECT_FALSE(windows_.command(window(), 304));
}

TEST_F(MapWindows, ADialogGoesWithItsMap) {
  widget_->show();
  session_->run("run menu command 807");
  const QPointer<QDialog> dialog = widget_->findChild<QDialog*>();
  ASSERT_FALSE(dialog.isNull());
  session_.reset();
  dialog->accept();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(dialog.isNull());
}

TEST(WidgetHandles, AreStableAndForgetWidgetsThatAreGone) {
  WidgetHandles handles;
  auto widget = std::make_unique<QWidget>();
  QWidget other;
  const std::int64_t handle = handles.handleOf(*widget);
  EXPECT_NE(handle, 0);
  EXPECT_EQ(handles.handleOf(*widget), handle);
  EXPECT_NE(handles.handleOf(other), handle);
  EXPECT_EQ(handles.widget(handle), widget.get());
  EXPECT_EQ(handles.widget(0), nullptr);
  widget.reset();
  EXPECT_EQ(handles.widget(handle), nullptr);
}

}  // namespace
}  // namespace motor

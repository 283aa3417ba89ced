#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "motor/session/session.h"
#include "motor/session/tiny_study.h"
#include "motor/window/qt_windows.h"

namespace motor {

class RecordedCalls : public platform::CallbackObject {
 public:
  [[nodiscard]] std::string className() const override { return "Calls"; }
  bool invoke(const std::string& method, const std::string& message) override {
    calls.push_back(method + " " + message);
    if (whenCalled) whenCalled();
    return true;
  }
  std::vector<std::string> calls;
  std::function<void()> whenCalled;
};

// The tiny study's year map in a real window, 400 by 300 pixels large.
class MapWidgetTest : public ::testing::Test {
 protected:
  MapWidgetTest() {
    const std::filesystem::path workspace = tiny::writeYear(folder_.path(), "2001");
    SessionOptions options;
    options.roots = {folder_.path()};
    session_ = std::make_unique<Session>(windows_, options);
    session_->setCallback(calls_);
    session_->run("run application \"" + workspace.string() + "\"");
    widget_ = windows_.widgetOf(window());
    widget_->resize(400, 300);
    widget_->reportSize();
  }

  [[nodiscard]] MapWindow& window() const { return *session_->mapWindows().front(); }
  [[nodiscard]] const Map& map() const { return window().map(); }

  void useOwnTool() {
    session_->run("Create Buttonpad \"Callback\" As Toolbutton ID 2001 DrawMode 34 Cursor 138 Calling OLE \"Info\"");
    session_->run("run menu command ID 2001");
  }

  // The pointer goes there, with a button held or none.
  void moveTo(QPoint to, Qt::MouseButton held = Qt::NoButton) {
    QMouseEvent move(QEvent::MouseMove, to, widget_->mapToGlobal(to), Qt::NoButton, held, {});
    QApplication::sendEvent(widget_, &move);
  }
  // The same, and it stays held.
  void pull(QPoint from, QPoint to) {
    QTest::mousePress(widget_, Qt::LeftButton, {}, from);
    moveTo(to, Qt::LeftButton);
  }
  void drag(Qt::MouseButton button, QPoint from, QPoint by) {
    QTest::mousePress(widget_, button, {}, from);
    moveTo(from + by, button);
    QTest::mouseRelease(widget_, button, {}, from + by);
  }
  void leave() {
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(widget_, &event);
  }
  void click(QPoint at) { QTest::mouseClick(widget_, Qt::LeftButton, {}, at); }
  // As the toolkit sends it: a click, then a second press of another kind.
  void doubleClick(QPoint at) {
    click(at);
    QMouseEvent second(QEvent::MouseButtonDblClick, at, widget_->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(widget_, &second);
    QTest::mouseRelease(widget_, Qt::LeftButton, {}, at);
  }
  [[nodiscard]] QPoint pixelOf(Point p) const { return toQPointF(map().toPixel(p)).toPoint(); }
  [[nodiscard]] QImage picture() const { return widget_->grab().toImage(); }

  void turnWheel(QPointF at, int angle) {
    QWheelEvent event(at, widget_->mapToGlobal(at), {}, {0, angle}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget_, &event);
  }

  tiny::Folder folder_;
  WidgetHandles handles_;
  QtWindows windows_{handles_};
  std::shared_ptr<RecordedCalls> calls_ = std::make_shared<RecordedCalls>();
  std::unique_ptr<Session> session_;
  QPointer<MapWidget> widget_;
};

}  // namespace motor

#pragma once

#include <QTabBar>
#include <string>
#include <vector>

#include "hosts/desktop/keyboard_focus.h"

namespace desktop {

// A row of tabs that tells of every pick of the user's, also of the tab already chosen; a double click is one pick.
class TabRow : public QTabBar {
  Q_OBJECT

 public:
  enum class Look {
    pages,    // headings over pages
    segments  // equal parts over the whole width
  };
  TabRow(Look look, const std::vector<std::string>& captions, QWidget& parent);

  // The user goes so many tabs on, or back; around the ends.
  void turn(int steps);

 signals:
  void picked(int index);

 protected:
  [[nodiscard]] QSize tabSizeHint(int index) const override;
  [[nodiscard]] QSize minimumTabSizeHint(int index) const override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void pick(int index);
  void paintPage(QPainter& painter, int index) const;
  void paintSegment(QPainter& painter, int index) const;

  Look look_;
  int hovered_ = -1;
  KeyboardRing ring_;
};

}  // namespace desktop

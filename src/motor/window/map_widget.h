#pragma once

#include <QTimer>
#include <QWidget>
#include <optional>

#include "motor/drawing/scale_bar.h"
#include "motor/session/map_window.h"
#include "motor/window/map_picture.h"
#include "motor/window/parent_filler.h"

namespace motor {

// A map on the screen. It shows a kept picture and reports what the user does: clicks with the current tool, the wheel
// zooms around the pointer, the grabber, the middle button or the left button with the space bar held pans, arrows pan,
// + and - zoom, Home shows the whole map, the right button opens the map's shortcut menu. Reached by the keyboard it
// has a ring in the highlight colour of what it lies in.
class MapWidget : public QWidget {
 public:
  explicit MapWidget(MapWindow& window);

  // The map, its style or the current tool have changed.
  void refresh();
  // The map window is gone; the widget shows nothing from here on.
  void detach();
  // Tells the map window how large the widget is, also while it is hidden.
  void reportSize();
  // Fills the widget it lies in from here on, also when it gets another parent.
  void fillParent();
  // How often the map was painted anew.
  [[nodiscard]] int renderCount() const { return picture_.renderCount(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  enum class Drag { none, click, pan };

  void paintMap(QPainter& painter);
  void paintEdge(QPainter& painter) const;
  void paintFocusRing(QPainter& painter) const;
  [[nodiscard]] ScaleBar scaleBar() const;
  [[nodiscard]] QPointF scaleBarCorner() const;
  void startMoving();
  void updateCursor();
  [[nodiscard]] bool moveByKey(int key);

  MapWindow* window_;
  MapPicture picture_;
  QTimer settle_;  // runs while the map is moving
  Drag drag_ = Drag::none;
  QPointF pressedAt_;
  QPointF lastAt_;
  bool spaceHeld_ = false;
  bool showsFocus_ = false;  // while the map has the keyboard: it came by it
  std::optional<ParentFiller> filler_;
};

}  // namespace motor

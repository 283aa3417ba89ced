#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>

#include "motor/drawing/scale_bar.h"
#include "motor/session/map_window.h"
#include "motor/window/map_picture.h"
#include "motor/window/overlays/hover_light.h"
#include "motor/window/overlays/placed_labels.h"
#include "motor/window/overlays/selection_light.h"
#include "motor/window/parent_filler.h"
#include "motor/window/tools/map_tool.h"

namespace motor {

// A map on the screen. It shows a kept picture and, above it, what is selected, what the pointer is over and what the
// tool in the user's hand shows; the tools hear of the left button. Whatever the tool, the wheel zooms around the
// pointer, the middle button or the left button with the space bar held pans, arrows pan, + and - zoom, Home shows the
// whole map, Escape gives up what a tool has begun, Ctrl+C copies the map, the right button and the menu key open the
// map's shortcut menu. Reached by the keyboard it has a ring in the highlight colour of what it lies in.
class MapWidget : public QWidget, private MapSite {
 public:
  explicit MapWidget(MapWindow& window);
  ~MapWidget() override;

  // The map, its style or the current tool have changed.
  void refresh();
  // The map window is gone; the widget shows nothing from here on.
  void detach();
  // The map window; null once it is gone.
  [[nodiscard]] MapWindow* mapWindow() override { return window_; }
  // Tells the map window how large the widget is, also while it is hidden.
  void reportSize();
  // Fills the widget it lies in from here on, also when it gets another parent.
  void fillParent();
  // Puts the map on the clipboard.
  void copy();

  // How often the map was painted anew.
  [[nodiscard]] int renderCount() const { return picture_.renderCount(); }
  [[nodiscard]] const HoverLight& hoverLight() const { return hover_; }
  [[nodiscard]] const SelectionLight& selectionLight() const { return selection_; }
  [[nodiscard]] const PlacedLabels& labels() override;
  // The tool in the user's hand; the map window is there.
  [[nodiscard]] MapTool& tool();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  // Which part of the world the map shows.
  struct Place {
    Point centre;
    double zoomMetres = 0;
    [[nodiscard]] bool operator==(const Place&) const = default;
  };
  [[nodiscard]] Place place() const;
  // For the tools.
  void toolChanged() override { update(); }
  void updateCursor() override;
  void startMoving() override;
  void takeOut() override;

  [[nodiscard]] MapPicture::Key pictureKey() const;
  void paintMap(QPainter& painter);
  void paintEdge(QPainter& painter) const;
  void paintFocusRing(QPainter& painter) const;
  [[nodiscard]] ScaleBar scaleBar() const;
  [[nodiscard]] QPointF scaleBarCorner() const;
  void useCurrentTool();
  void press(QMouseEvent* event, void (MapTool::*begin)(const Pointer&));
  void settle();
  void lightUp();
  void lightUpAgain();
  [[nodiscard]] bool moveByKey(int key);
  [[nodiscard]] bool giveUp();

  MapWindow* window_;
  MapPicture picture_;
  QTimer settle_;                  // runs while the map is moving
  std::shared_ptr<MapTool> tool_;  // null until it is asked for
  std::shared_ptr<MapTool> held_;  // the one that has the button that is held
  Qt::MouseButton heldButton_ = Qt::NoButton;
  std::optional<QPointF> pointer_;  // while it is over the map
  HoverLight hover_;
  std::uint64_t hoverRevision_ = 0;  // of the map that the light was for
  Place litPlace_;                   // of the same
  SelectionLight selection_;
  LabelTexts texts_;
  PlacedLabels labels_;
  std::optional<MapPicture::Key> labelsKey_;
  bool spaceHeld_ = false;
  bool showsFocus_ = false;  // while the map has the keyboard: it came by it
  std::optional<ParentFiller> filler_;
};

}  // namespace motor

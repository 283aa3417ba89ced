#pragma once

#include <optional>

#include "motor/window/overlays/placed_labels.h"
#include "motor/window/tools/gesture.h"
#include "motor/window/tools/map_tool.h"

namespace motor {

// The labeller. A click on an object labels it, a second one, or one on the label, takes the label away; a label that
// is dragged lies where it is dropped, and Escape leaves it where it was.
class LabelTool : public MapTool {
 public:
  using MapTool::MapTool;

  void press(const Pointer& pointer) override;
  void drag(const Pointer& pointer) override;
  void release(const Pointer& pointer) override;
  void hover(const Pointer& pointer) override;
  bool cancel() override;
  void paint(QPainter& painter, const MapView& view) const override;
  [[nodiscard]] QCursor cursor() const override;
  [[nodiscard]] bool lightsObjects() const override { return !isOverLabel_ && !gesture_.isHeld(); }

 private:
  void clickAt(QPointF at);
  // How far the label goes: along with the pointer, as far as the window reaches.
  [[nodiscard]] QPointF carriedBy(const QRectF& window) const;
  void dropLabel();

  Gesture gesture_;
  std::optional<PlacedLabel> grabbed_;
  bool isOverLabel_ = false;
};

}  // namespace motor

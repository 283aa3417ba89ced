#pragma once

#include "motor/window/tools/map_tool.h"

namespace motor {

// The grabber: the map goes along with whoever drags it. Escape puts it back where it was.
class PanTool : public MapTool {
 public:
  using MapTool::MapTool;

  void press(const Pointer& pointer) override;
  void drag(const Pointer& pointer) override;
  void release(const Pointer& pointer) override;
  bool cancel() override;
  [[nodiscard]] QCursor cursor() const override;

 private:
  void moveBy(QPointF by);

  bool isHeld_ = false;
  QPointF from_;
  QPointF last_;
};

}  // namespace motor

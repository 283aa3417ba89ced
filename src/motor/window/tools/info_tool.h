#pragma once

#include <optional>
#include <vector>

#include "motor/window/overlays/plate.h"
#include "motor/window/tools/gesture.h"
#include "motor/window/tools/map_tool.h"

namespace motor {

// Info. A click on an object shows its record on a plate in the window; the next click on it shows the next of the
// records that share the object. A click beside everything and Escape take the plate away.
class InfoTool : public MapTool {
 public:
  using MapTool::MapTool;

  void press(const Pointer& pointer) override { gesture_.begin(pointer.at); }
  void drag(const Pointer& pointer) override { gesture_.moveTo(pointer.at); }
  void release(const Pointer& pointer) override;
  bool cancel() override;
  void paint(QPainter& painter, const MapView& view) const override;
  [[nodiscard]] bool lightsObjects() const override { return true; }

  // What the plate says: the columns with their values, and which record it is.
  [[nodiscard]] const std::vector<Reading>& readings() const { return readings_; }
  [[nodiscard]] const QString& hint() const { return hint_; }

 private:
  void show(const Hit& hit);

  Gesture gesture_;
  ObjectPtr object_;
  std::size_t record_ = 0;  // of those that share the object
  std::vector<Reading> readings_;
  QString hint_;
};

}  // namespace motor

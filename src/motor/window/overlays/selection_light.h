#pragma once

#include <QImage>
#include <cstdint>
#include <memory>
#include <vector>

#include "motor/session/map_window.h"
#include "motor/window/overlays/object_outline.h"

namespace motor {

// Marks the selected objects on the layers that show their table. A selection of all of them tells nothing apart and is
// not marked.
class SelectionLight {
 public:
  // While the map is moving, the marks of many objects are those of before, moved and scaled.
  void paint(QPainter& painter, const MapWindow& window, const MapView& view, double devicePixelRatio, bool moving);
  // The objects that were marked last, in the map's coordinates.
  [[nodiscard]] const std::vector<ObjectPtr>& objects() const { return objects_; }

 private:
  // Tells whether they are others than before.
  bool findObjects(const MapWindow& window);
  [[nodiscard]] std::vector<QPainterPath> outlines(const MapView& view, double devicePixelRatio);

  std::shared_ptr<const ResultTable> selection_;
  std::uint64_t revision_ = 0;
  std::vector<ObjectPtr> objects_;
  QImage marks_;  // of many objects; null while there are few
  Box shown_;     // by it, in the map's coordinates
};

}  // namespace motor

#pragma once

#include <QStringList>

#include "motor/drawing/label_texts.h"
#include "motor/session/map_window.h"
#include "motor/window/overlays/object_outline.h"

namespace motor {

// Lights up the object under the pointer and tells its name beside it, with the names of the larger ones around it.
class HoverLight {
 public:
  // The pointer is there; tells whether what is to be painted has changed.
  bool pointTo(const MapWindow& window, QPointF at);
  // The pointer is elsewhere.
  bool clear();

  // Null without an object.
  [[nodiscard]] const ObjectPtr& object() const { return object_; }
  [[nodiscard]] const QStringList& names() const { return names_; }

  void paintOutline(QPainter& painter, const MapView& view, double devicePixelRatio);
  void paintNames(QPainter& painter, const MapView& view) const;

 private:
  LabelTexts texts_;
  QPointF at_;
  ObjectPtr object_;  // in the map's coordinates
  QStringList names_;
};

}  // namespace motor

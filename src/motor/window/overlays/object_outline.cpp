#include "motor/window/overlays/object_outline.h"

#include "motor/drawing/object_memory.h"
#include "motor/drawing/shape_painter.h"

namespace motor {

QPainterPath outlineOf(const ObjectPtr& object, const MapView& view, double devicePixelRatio) {
  constexpr double kPointRing = 9;
  QPainterPath path;
  path.setFillRule(Qt::OddEvenFill);
  switch (object->kind) {
    case MapObject::Kind::point:
      for (const Point& p : object->points) path.addEllipse(view.toPixel(p), kPointRing, kPointRing);
      break;
    case MapObject::Kind::text:
      path.addRect(view.toPixels(object->bounds).normalized());
      break;
    case MapObject::Kind::polyline:
    case MapObject::Kind::region: {
      const int level = simplificationLevel(view.unitsPerPixel() / devicePixelRatio);
      for (const QPolygonF& part : pixelParts(*object, ObjectMemory::shared().paths.of(object, level), view))
        path.addPolygon(part);
      break;
    }
  }
  return path;
}

}  // namespace motor

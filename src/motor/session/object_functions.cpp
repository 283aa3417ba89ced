#include "motor/session/session_functions.h"
#include "motor/tables/geometry.h"

namespace motor {

Value centroidX(SessionState& /*session*/, const Arguments& arguments) { return centroid(*arguments.object(0)).x; }

Value centroidY(SessionState& /*session*/, const Arguments& arguments) { return centroid(*arguments.object(0)).y; }

Value createPoint(SessionState& /*session*/, const Arguments& arguments) {
  auto object = std::make_shared<MapObject>();
  object->kind = MapObject::Kind::point;
  object->points = {{arguments.number(0), arguments.number(1)}};
  object->parts = {0};
  object->bounds.add(object->points.front());
  return ObjectPtr(std::move(object));
}

}  // namespace motor

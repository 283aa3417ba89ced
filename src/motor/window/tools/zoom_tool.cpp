#include "motor/window/tools/zoom_tool.h"

#include "motor/window/tools/rubber_band.h"

namespace motor {

void ZoomTool::press(const Pointer& pointer) { gesture_.begin(pointer.at); }

void ZoomTool::drag(const Pointer& pointer) {
  if (!gesture_.isHeld()) return;
  gesture_.moveTo(pointer.at);
  site().toolChanged();
}

void ZoomTool::release(const Pointer& pointer) {
  gesture_.moveTo(pointer.at);
  if (!gesture_.end()) return;
  if (!gesture_.isDrag()) {
    mapWindow()->clicked(toPoint(gesture_.from()), pointer.shift(), pointer.control());
    return;
  }
  const QRectF pulled = gesture_.box();
  const Box box{pulled.left(), pulled.top(), pulled.right(), pulled.bottom()};
  comesNearer() ? mapWindow()->zoomedIntoBox(box) : mapWindow()->zoomedOutOfBox(box);
  site().toolChanged();
}

bool ZoomTool::cancel() {
  if (!gesture_.end()) return false;
  site().toolChanged();
  return true;
}

void ZoomTool::paint(QPainter& painter, const MapView& view) const {
  if (!gesture_.isDragging()) return;
  if (comesNearer()) {
    paintBoxOfInterest(painter, view.rect(), gesture_.box());
  } else {
    paintBoxOfRetreat(painter, gesture_.box());
  }
}

}  // namespace motor

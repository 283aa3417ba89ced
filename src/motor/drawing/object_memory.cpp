#include "motor/drawing/object_memory.h"

namespace motor {

ObjectMemory& ObjectMemory::shared() {
  static ObjectMemory memory;
  return memory;
}

void ObjectMemory::dropUnused() {
  paths.dropUnused();
  labelPoints.dropUnused();
}

}  // namespace motor

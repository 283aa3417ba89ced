#pragma once

#include "motor/drawing/label_points.h"
#include "motor/drawing/simplified_paths.h"

namespace motor {

// What is known about the shapes of objects, whichever map shows them: a map that is opened again, or beside another of
// the same tables, is painted without finding it out anew. For the thread that paints maps.
struct ObjectMemory {
  SimplifiedPaths paths{kZoomLevels};
  LabelPoints labelPoints;

  static ObjectMemory& shared();
  // Forgets objects that are gone.
  void dropUnused();

 private:
  static constexpr std::size_t kZoomLevels = 6;  // of a map, its print and its overview, on the way between two zooms
};

}  // namespace motor

#include "motor/session/session_functions.h"

#include <array>

namespace motor {

std::span<const StateFunctionEntry<SessionState>> sessionFunctions() {
  using Entry = StateFunctionEntry<SessionState>;
  static constexpr std::array kFunctions{
      Entry{"centroidx", 1, 1, centroidX},
      Entry{"centroidy", 1, 1, centroidY},
      Entry{"commandinfo", 1, 1, commandInfo},
      Entry{"createpoint", 2, 2, createPoint},
      Entry{"eot", 1, 1, endOfTable},
      Entry{"frontwindow", 0, 0, frontWindow},
      Entry{"layerinfo", 3, 3, layerInfo},
      Entry{"mapperinfo", 2, 2, mapperInfo},
      Entry{"numcols", 1, 1, numberOfColumns},
      Entry{"numallwindows", 0, 0, numberOfAllWindows},
      Entry{"numtables", 0, 0, numberOfTables},
      Entry{"numwindows", 0, 0, numberOfWindows},
      Entry{"searchinfo", 2, 2, searchInfo},
      Entry{"searchpoint", 3, 3, searchPoint},
      Entry{"selectioninfo", 1, 1, selectionInfo},
      Entry{"sessioninfo", 1, 1, sessionInfo},
      Entry{"tableinfo", 2, 2, tableInfo},
      Entry{"windowid", 1, 1, windowId},
      Entry{"windowinfo", 2, 2, windowInfo},
  };
  return kFunctions;
}

}  // namespace motor

#pragma once

#include <string>

#include "platform/map_engine.h"

namespace headless {

// The engines of a run without a screen, and the user's pointer on their maps.
class EngineHost {
 public:
  virtual ~EngineHost() = default;

  [[nodiscard]] virtual platform::MapEngines& engines() = 0;

  // The user clicks on the current engine's front map with the current tool, at a point in the session's coordinates,
  // written as numbers with ".". False when there is no map.
  virtual bool clickMap(const std::string& x, const std::string& y) = 0;
};

}  // namespace headless

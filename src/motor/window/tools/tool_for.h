#pragma once

#include <memory>

#include "motor/window/tools/map_tool.h"

namespace motor {

// A new tool of this kind on a map. A standard tool that the window does not have at work leaves clicks to the session.
[[nodiscard]] std::unique_ptr<MapTool> toolFor(const Tool& tool, MapSite& site);

}  // namespace motor

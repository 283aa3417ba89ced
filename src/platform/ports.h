#pragma once

#include <string>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/map_engine.h"
#include "platform/messages.h"
#include "platform/programs.h"
#include "platform/registry.h"
#include "platform/window_system.h"

namespace platform {

// All that the program sees of the outside world. The host owns what is referred to and outlives the program.
struct Ports {
  MapEngines& engines;
  WindowSystem& windows;
  Registry& registry;
  Files& files;
  Programs& programs;
  Messages& messages;
  Dialogs& dialogs;
  std::string applicationFolder;  // without a "\" at its end
};

}  // namespace platform

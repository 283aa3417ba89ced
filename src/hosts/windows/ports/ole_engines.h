#pragma once

#include "platform/map_engine.h"

namespace windows {

// Engines created by their program id through OLE, in this process or in one of their own, and driven late bound by the
// names "do", "eval" and "SetCallback". OLE must have been started on the thread.
//
// Failures: 429 when no engine can be created; -2147352567 with the engine's own description when it answers a call
// with an exception; 438 for a name that it does not know; 462 when its process is gone; else as failureOf says. An
// engine that dies in the middle of a call fails that call and every later one.
class OleEngines : public platform::MapEngines {
 public:
  [[nodiscard]] std::shared_ptr<platform::MapEngine> create(const std::string& programId) override;
};

}  // namespace windows

#pragma once

#include <cstdint>

namespace windows {

// GDI+ as long as it lives, and with it the pictures that were read. Nothing may be drawn before or after.
class GraphicsTime {
 public:
  GraphicsTime();
  ~GraphicsTime();
  GraphicsTime(const GraphicsTime&) = delete;
  GraphicsTime& operator=(const GraphicsTime&) = delete;

 private:
  std::uintptr_t token_ = 0;
};

}  // namespace windows

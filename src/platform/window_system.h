#pragma once

#include <cstdint>
#include <string>

// Top-level windows and their order. Handles are tokens that a host gives out.
namespace platform {

using WindowHandle = std::int64_t;  // 0 is no window

enum class ZOrder { topmost, notTopmost };

// Flags of setZOrder, to be added up.
inline constexpr unsigned kNoSize = 1;
inline constexpr unsigned kNoMove = 2;
inline constexpr unsigned kNoActivate = 16;
inline constexpr unsigned kShowWindow = 64;

class WindowSystem {
 public:
  virtual ~WindowSystem() = default;

  // The top-level window whose title is exactly `title`, or 0.
  [[nodiscard]] virtual WindowHandle find(const std::string& title) = 0;

  // Asks a window to close (a close message with both parameters 0). A handle of 0 does nothing.
  virtual void close(WindowHandle window) = 0;

  // Makes `child` a child window of `parent`. An unknown handle does nothing.
  virtual void setParent(WindowHandle child, WindowHandle parent) = 0;

  // Puts a window into or out of the topmost band, at position and size 0, as far as the flags do not keep them.
  virtual void setZOrder(WindowHandle window, ZOrder order, unsigned flags) = 0;
};

}  // namespace platform

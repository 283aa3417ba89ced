#pragma once

#include <optional>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// The last time that the program was at work for longer than a moment. The user may have clicked and pressed keys out
// of impatience; what was done to a program that did not answer is not done when it does. Times are the system's, as
// messages have them (GetTickCount).
class LongWork {
 public:
  void begin(DWORD now) { begin_ = now; }
  // Does nothing where no work is under way. True when what was pressed meanwhile, or before it, may still wait.
  bool end(DWORD now);
  [[nodiscard]] bool isUnderWay() const { return begin_.has_value(); }

  // Whether the message is a mouse button or a key pressed meanwhile. What is typed into a text stays: who types fast
  // means it. What happens to a window's frame stays too.
  [[nodiscard]] bool covers(const MSG& message) const;

 private:
  struct Span {
    DWORD begin;
    DWORD end;
    [[nodiscard]] DWORD length() const { return end - begin; }
  };

  std::optional<DWORD> begin_;
  std::optional<Span> last_;
};

}  // namespace windows

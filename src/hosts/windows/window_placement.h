#pragma once

#include "hosts/screen/looks.h"
#include "hosts/windows/drawing/scale.h"

namespace windows {

// The room that a monitor gives to windows, and how they draw on it: by its resolution, and smaller where the working
// window would not have room.
struct Room {
  RECT area{};
  Scale scale{};
};
[[nodiscard]] Room roomOf(HMONITOR monitor, UINT dots);
// The same for the monitor that a window is on.
[[nodiscard]] Room roomOf(HWND window);

// The smallest size, with its frame, at which the working window has room for what lies in it.
[[nodiscard]] SIZE smallestWorkingWindow(const Scale& scale);

// Where a form's window of the given size, with its frame, first stands: the working window uses most of the room, the
// others have their size; all stand in the middle.
[[nodiscard]] RECT firstPlace(screen::FormLook look, SIZE stored, const Room& room);

}  // namespace windows

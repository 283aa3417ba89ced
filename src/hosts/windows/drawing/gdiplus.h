#pragma once

#include "hosts/windows/win32/windows_h.h"
// Its headers want names that the system's headers no longer bring along.
#include <algorithm>
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <gdiplus.h>

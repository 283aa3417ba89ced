#pragma once

namespace windows {

// The title of boxes that the host shows for itself.
inline constexpr const char* kProgramName = "Mortalidad en Veldoria 1999-2002";

}  // namespace windows

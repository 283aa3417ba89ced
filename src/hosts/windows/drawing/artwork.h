#pragma once

#include <string>

#include "hosts/windows/drawing/gdiplus.h"

// The program's drawings, kept in the executable. A picture is known by the name of its file without the ending.
namespace windows::artwork {

// The picture, or null when there is none. It is read once and lives as long as GDI+.
[[nodiscard]] Gdiplus::Bitmap* picture(const std::string& name);

// Lets go of all pictures; to be called before GDI+ ends.
void forget();

}  // namespace windows::artwork

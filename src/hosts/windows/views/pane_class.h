#pragma once

namespace windows {

// The class of windows that only hold others or are painted by their views.
[[nodiscard]] const wchar_t* paneClass();

}  // namespace windows

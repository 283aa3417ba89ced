#pragma once

#include <QString>

namespace desktop::pages {

// The addresses that a page may hold, as far as they make sense in one: trimmed, with "/" between folders. Empty for
// those that would run something or that hold data themselves. Whether anything is loaded from them is another matter.
[[nodiscard]] QString linkAddress(const QString& written);

// Only files: without a scheme, or "file:".
[[nodiscard]] QString pictureAddress(const QString& written);

}  // namespace desktop::pages

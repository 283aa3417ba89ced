#pragma once

#include <QString>

namespace desktop::pages {

// The first `most` units of a text, or one fewer where that would leave half a character.
[[nodiscard]] QString shortened(const QString& text, qsizetype most);

}  // namespace desktop::pages

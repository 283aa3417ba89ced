#pragma once

#include <QFont>
#include <string>

#include "motor/language/styles.h"

namespace motor {

// The installed family that stands for a font's name, one of about the same widths: "DejaVu Sans Condensed" for Tahoma,
// "DejaVu Sans" for Verdana. A name that is installed stands for itself; anything else is "DejaVu Sans".
[[nodiscard]] QString installedFamily(const std::string& name);

// Whether a font of exactly this name is installed.
[[nodiscard]] bool isInstalled(const std::string& name);

// The toolkit's font: family, bold, italic, underline, strike-out, capitals and expanded spacing; its height in logical
// pixels from the size in points (at most 256), or `pixels` where it is not 0 (at most 8192).
[[nodiscard]] QFont toQFont(const Font& font, double pixels = 0);

// Whether a font asks for a halo around its letters.
[[nodiscard]] bool hasHalo(const Font& font);

// Whether a font asks for a shadow behind its letters.
[[nodiscard]] bool hasShadow(const Font& font);

// Whether a font asks for a box of its back colour behind its letters.
[[nodiscard]] bool hasBox(const Font& font);

}  // namespace motor

#pragma once

#include <QString>

namespace desktop::pages {

// The text with its character references ("&ntilde;", "&#241;", "&#xF1;") replaced by their characters. Numbers from
// 128 to 159 mean code page 1252, as older pages use them; a number that is no character becomes U+FFFD. What is no
// reference stays as it stands; the names of Latin-1 need no semicolon.
[[nodiscard]] QString withoutReferences(QStringView text);

}  // namespace desktop::pages

#pragma once

#include <QString>

#include "hosts/desktop/pages/reading/page_style.h"

// The markup that the toolkit's rich text reads, from styles. All lengths are multiplied by the zoom and rounded to
// whole pixels.
namespace desktop::pages {

// A text or an attribute's value: & < > " as references.
[[nodiscard]] QString escaped(QStringView text);

[[nodiscard]] int zoomed(double pixels, double zoom);

// Whether markup stands in other markup that has a style: what is as usual must then be said too.
enum class Around : bool { nothing, styles };

// "font-family:'Arial';font-size:13px;..." of the whole text style, or of what differs from `base`.
[[nodiscard]] QString textCss(const TextStyle& style, Around around, double zoom);
[[nodiscard]] QString textCss(const TextStyle& style, const TextStyle& base, double zoom);

// Alignment, line breaks and the height of lines.
[[nodiscard]] QString blockCss(const PageStyle& style, Around around);
// The attribute of a paragraph or cell for the one alignment that is no style to the toolkit; a blank before it.
[[nodiscard]] QLatin1String blockAttribute(const PageStyle& style);

// Padding, borders, background and vertical alignment of a cell.
[[nodiscard]] QString cellCss(const PageStyle& style, double zoom);

// "120" or "50%"; empty for an automatic width.
[[nodiscard]] QString widthText(const Length& width, double zoom);

}  // namespace desktop::pages

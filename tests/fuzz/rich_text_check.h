#pragma once

#include <QString>

// Whether a text is what the page reader may write, and nothing else: elements of the toolkit's rich text that are
// closed in the order in which they were opened, attributes that show, name or lead somewhere, and characters that
// stand for themselves. What is wrong with it, or nothing.
[[nodiscard]] QString faultIn(const QString& richText);

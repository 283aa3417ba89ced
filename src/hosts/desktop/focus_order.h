#pragma once

#include <QWidget>
#include <vector>

namespace desktop {

// The widgets of a window that take the keyboard, in reading order: from the top, rows from the left. What stands in a
// small frame that hangs below a menu entry follows that entry.
[[nodiscard]] std::vector<QWidget*> readingOrder(const QWidget& window);

// The widget after (or before) `from` in reading order, around the ends; null when there is none.
[[nodiscard]] QWidget* nextInReadingOrder(const QWidget& window, const QWidget* from, bool next);

}  // namespace desktop

#pragma once

#include <QWidget>
#include <vector>

namespace desktop {

// Whether the widget can have the keyboard: seen in the window, and enabled.
[[nodiscard]] bool canHaveKeyboard(const QWidget& widget, const QWidget& window);

// The widgets of a window that take the keyboard, in reading order: what stands over and in the largest pages and left
// of their right edge, then what stands right of it, then the menu; each from the top, rows from the left. What stands
// in a small frame that hangs below a menu entry follows that entry. Of option buttons only the chosen one is among
// them, and of the tool buttons that stand side by side only the one where the keyboard is, or was last, or else the
// tool in hand, or the first; the arrow keys lead to the others. What lies hidden under pages is not among them.
[[nodiscard]] std::vector<QWidget*> readingOrder(const QWidget& window);

// The tool buttons that stand side by side in the window with this one, itself among them, from the left.
[[nodiscard]] std::vector<QWidget*> toolbarAround(const QWidget& window, const QWidget& button);

// The widget after (or before) `from`, or after the place where `from` has been, around the ends; null when there is
// none.
[[nodiscard]] QWidget* nextInReadingOrder(const QWidget& window, const QWidget* from, bool next);

// The first widget in reading order at which a key only chooses, and starts nothing; or null.
[[nodiscard]] QWidget* firstChoice(const QWidget& window);

}  // namespace desktop

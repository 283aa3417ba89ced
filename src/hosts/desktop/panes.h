#pragma once

#include <QWidget>
#include <vector>

// The larger steps of the keyboard: from one part of a window to the next, and from one page to the next.
namespace desktop {

class TabRow;

// Where the keyboard comes into each part of a window, in reading order: a row of headings with its page, the map, the
// tree and so on; the entries of the menu are one part, and so is all of a palette.
[[nodiscard]] std::vector<QWidget*> paneStarts(const QWidget& window);

// Where the keyboard goes from the part of a window that `from` lies in (or from none) to the next part or the one
// before. Past the ends it goes on to the palettes of the window, or from a palette back to its window; null when there
// is nowhere to go.
[[nodiscard]] QWidget* nextPane(const QWidget& window, const QWidget* from, bool next);

// The headings that stand for the place of the keyboard: those of the pages that `from` lies in, else of the largest
// pages of the window, or of the window that a palette lies in front of; null when there are none.
[[nodiscard]] TabRow* headingsFor(const QWidget& window, const QWidget* from);

}  // namespace desktop

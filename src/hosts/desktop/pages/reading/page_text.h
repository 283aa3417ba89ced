#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>
#include <functional>

#include "hosts/desktop/pages/reading/page_style.h"

namespace desktop::pages {

// A page as the toolkit's rich text shows it well.
struct PageText {
  QString html;
  QString title;         // blanks simplified; empty where the page has none
  QColor background;     // invalid: the page does not say
  Sides<int> margins{};  // around everything, in pixels as shown
  int widest = 0;        // pixels that the page's lines may be wide, as shown; 0: as wide as there is room
  bool isCut = false;    // the page is larger than what is shown of it
};

// Gives the bytes of a style sheet by its address as the page writes it; empty where it may not be had.
using SheetReader = std::function<QByteArray(const QString& address)>;

// The largest file that is read, in bytes; what is behind it is left out.
inline constexpr qint64 kMostPageBytes = 16 * 1024 * 1024;

// Reads a page, however old or broken, into plain markup of the toolkit's kind: paragraphs and tables whose styles
// stand with them, in pixels times `zoom`. Scripts, forms, frames, pictures within the page and everything else that
// the toolkit cannot show are left out; what a page may ask for is limited so that it is shown in seconds. Every text
// is a page, and the same bytes always give the same text.
[[nodiscard]] PageText readPage(const QByteArray& bytes, double zoom = 1, const SheetReader& sheets = {});

}  // namespace desktop::pages

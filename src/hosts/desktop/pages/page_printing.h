#pragma once

#include <QByteArray>
#include <QString>

class QPrinter;
class QWidget;

namespace desktop::pages {

// Opens the preview of a page on paper, from which it is printed, and returns. Tables that are wider than the paper is
// high stand upright all the same, only smaller; others turn the paper. Each sheet has the page's name and its number
// at the foot.
void previewPage(QWidget& parent, const QByteArray& page, const QString& name);

// Whether the page wants paper that lies on its long side.
[[nodiscard]] bool wantsLandscape(const QByteArray& page);

// Prints the page on the paper that the printer has.
void printPage(QPrinter& printer, const QByteArray& page, const QString& name);

}  // namespace desktop::pages

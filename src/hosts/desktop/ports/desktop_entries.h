#pragma once

#include <QString>
#include <QStringList>

// Which program of the user's desktop opens which kind of file, as freedesktop.org describes associations between kinds
// of files and applications, and desktop entries.
namespace desktop {

// The command that opens a file of that kind ("application/pdf"): the program and its words, the file among them. The
// user's own choice comes first, then that of the desktop, then any program that says it opens such files. Empty when
// there is none, or none whose program is installed and has a window of its own.
[[nodiscard]] QStringList commandToOpen(const QString& file, const QString& kind);

// The words of a desktop entry's command line with the file in its place; at the end where the line names no place.
[[nodiscard]] QStringList commandWithFile(const QString& line, const QString& file);

}  // namespace desktop

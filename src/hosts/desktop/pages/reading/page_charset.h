#pragma once

#include <QByteArray>
#include <QString>

namespace desktop::pages {

// The text of a page's bytes. What counts, in this order: a byte order mark (UTF-8, UTF-16 of both orders); the charset
// that the page's first kilobytes declare (a meta element or an XML declaration); UTF-8 where the bytes are that; else
// the western code page 1252, which older pages are written in. A declared charset that is not known here, or UTF-8
// that the bytes are not, counts as none. Bytes without meaning become U+FFFD, and so does every character that stands
// for something else inside the toolkit's documents; control characters become blanks.
[[nodiscard]] QString decodedPage(const QByteArray& bytes);

// The charset's name as the page declares it, in lower case, or nothing.
[[nodiscard]] QByteArray declaredCharset(const QByteArray& bytes);

}  // namespace desktop::pages

#pragma once

#include <QImage>
#include <QString>

namespace desktop::pages {

// The picture in a file, as large as the page at this zoom wants it; an invisible one where the file is no picture of
// the kinds that pages have (PNG, JPEG, GIF, BMP), or one so large that it is none.
[[nodiscard]] QImage pictureIn(const QString& file, double zoom);

}  // namespace desktop::pages

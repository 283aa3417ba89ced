#pragma once

#include <QByteArray>
#include <QString>

namespace desktop {

// The text of an HTML page: UTF-8 where it is that, else the western code page 1252, which older pages are written in.
[[nodiscard]] QString pageText(const QByteArray& bytes);

}  // namespace desktop

#pragma once

#include <QFontMetricsF>
#include <QString>
#include <QStringList>

namespace motor {

// A text in lines no wider than `room`, broken at blanks; a word that is wider than `widestWord`, which is at least the
// room, is broken between its letters. Line ends of the text stay.
[[nodiscard]] QStringList wrappedText(const QString& text, const QFontMetricsF& metrics, double room,
                                      double widestWord);

}  // namespace motor

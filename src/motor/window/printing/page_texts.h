#pragma once

#include <QDate>
#include <QString>

#include "motor/session/map_window.h"

namespace motor {

// What a printed page says besides the map. An empty text takes no room.
struct PageTexts {
  QString title;
  QString subtitle;
  QString source;
  QString date;
};

// What a map's page says unless the user wants something else: the window's title where a statement has given it one,
// what follows a ". " in it as the subtitle; else the title and subtitle of its theme, else the application's title; as
// the source the application's title; the date in words.
[[nodiscard]] PageTexts pageTexts(const MapWindow& window, const QString& applicationTitle, QDate date);

// Whether a map has a theme that is displayed, which is what a legend on a page explains.
[[nodiscard]] bool hasTheme(const Map& map);

}  // namespace motor

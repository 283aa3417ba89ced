#include "motor/window/printing/page_texts.h"

#include <QLocale>
#include <algorithm>

#include "motor/drawing/legend_sections.h"

namespace motor {

namespace {

// A window that was given no title is named after its tables.
bool isOwnTitle(const QString& title) { return !title.isEmpty() && !title.endsWith(QLatin1String(" Map")); }

}  // namespace

bool hasTheme(const Map& map) {
  return std::any_of(map.layers.begin(), map.layers.end(),
                     [&](const Layer& layer) { return layer.theme && layer.isDrawnAt(map.zoomMetres); });
}

PageTexts pageTexts(const MapWindow& window, const QString& applicationTitle, QDate date) {
  PageTexts texts;
  texts.title = applicationTitle;
  if (hasTheme(window.map())) {
    Themes themes;
    const std::vector<LegendSection> sections = legendSections(window.map(), themes);
    if (!sections.empty() && !sections.front().title.isEmpty()) {
      texts.title = sections.front().title;
      texts.subtitle = sections.front().subtitle;
    }
  }
  const QString own = QString::fromStdString(window.properties().title);
  if (isOwnTitle(own)) {
    const QLatin1String end(". ");
    texts.title = own.section(end, 0, 0);
    if (own.contains(end)) texts.subtitle = own.section(end, 1);
  }
  if (!applicationTitle.isEmpty()) texts.source = QStringLiteral("Fuente: ") + applicationTitle;
  const QLocale spanish(QLocale::Spanish, QLocale::Spain);
  texts.date = spanish.toString(date, QStringLiteral("d 'de' MMMM 'de' yyyy"));
  return texts;
}

}  // namespace motor

#include "motor/drawing/legend_sections.h"

#include <algorithm>

#include "motor/drawing/frame_sections.h"
#include "motor/drawing/legend_lines.h"

namespace motor {

namespace {

constexpr Colour kInk = 0x282C34;
constexpr Colour kMuted = 0x5A6270;
constexpr int kBold = 1;

Font plainFont() { return {"Tahoma", 0, 8.25, kInk, kTransparent}; }

LegendSection plainSection() {
  LegendSection section;
  section.titleFont = {"Tahoma", kBold, 9, kInk, kTransparent};
  section.subtitleFont = {"Tahoma", 0, 8.25, kMuted, kTransparent};
  section.lineFont = plainFont();
  return section;
}

// The object that stands for a layer: the first one of its table.
ObjectPtr sampleOf(const Table& table) {
  for (RowId row = 1; row <= table.rowCount(); ++row) {
    if (!table.isDeleted(row) && table.object(row)) return table.object(row);
  }
  return nullptr;
}

// A title's words and font: given, or the engine's own.
void readTitle(const std::optional<LegendText>& given, const QString& own, const ThemeValues& values, QString& title,
               Font& font) {
  title = own;
  if (!given) return;
  if (!given->automatic && given->text) title = QString::fromStdString(values.constant(*given->text).toText());
  if (given->font) font = values.font(*given->font);
}

LegendSection themeSection(const Layer& layer, Themes& themes) {
  static const LegendLayer kOwnChoice;
  const LegendLayer& wanted = layer.legend ? *layer.legend : kOwnChoice;
  LegendSection section = plainSection();
  const ThemeValues values(layer);
  const QString name = QString::fromStdString(shadedName(layer));
  const QString by = layer.theme->with.empty()
                         ? QString()
                         : QStringLiteral("por ") + QString::fromStdString(layer.theme->with.front().text);
  readTitle(wanted.title, name, values, section.title, section.titleFont);
  readTitle(wanted.subtitle, by, values, section.subtitle, section.subtitleFont);
  if (wanted.subtitle && wanted.subtitle->font) section.lineFont = section.subtitleFont;
  if (wanted.rowFont) section.lineFont = values.font(*wanted.rowFont);
  section.lines = legendLines(layer, themes.of(layer), wanted, values, sampleOf(*layer.table));
  return section;
}

// A theme whose legend has no value shows its name only.
LegendSection sectionOf(const Layer& layer, Themes& themes) {
  try {
    return themeSection(layer, themes);
  } catch (const LanguageError&) {
  } catch (const EngineError&) {
  }
  LegendSection section = plainSection();
  section.title = QString::fromStdString(layer.name);
  return section;
}

// The line of a layer that is no theme, if it has an object to show.
void addLayer(LegendSection& section, const Layer& layer) {
  const ObjectPtr sample = sampleOf(*layer.table);
  if (sample == nullptr) return;
  const LegendSwatch swatch{swatchOf(sample->kind), styleIn(layer, *sample), 0};
  section.lines.push_back({swatch, QString::fromStdString(layer.name), std::nullopt});
}

LegendSection layersOf(const Map& map) {
  LegendSection section = plainSection();
  for (const Layer& layer : map.layers) {
    if (layer.display != Display::off && layer.table && !layer.theme) addLayer(section, layer);
  }
  return section;
}

LegendSection sectionOfAny(const Layer& layer, Themes& themes) {
  if (layer.theme) return sectionOf(layer, themes);
  LegendSection section = plainSection();
  addLayer(section, layer);
  return section;
}

LegendSection saying(const QString& words) {
  LegendSection section = plainSection();
  section.subtitle = words;
  return section;
}

}  // namespace

std::vector<LegendSection> legendSections(const Map& map, Themes& themes) {
  std::vector<LegendSection> sections =
      frameSections(map, [&themes](const Layer& layer) { return sectionOfAny(layer, themes); });
  if (!sections.empty()) return sections;
  bool hasThemes = false;
  for (const Layer& layer : map.layers) {
    if (!layer.theme || !layer.table) continue;
    hasThemes = true;
    const bool isHidden = layer.legend && !layer.legend->shown.value_or(true);
    if (layer.display != Display::off && !isHidden) sections.push_back(sectionOf(layer, themes));
  }
  if (hasThemes && sections.empty()) sections.push_back(saying(QStringLiteral("Ningún mapa temático a la vista")));
  if (!hasThemes) sections.push_back(layersOf(map));
  if (!hasThemes && sections.back().lines.empty()) sections.back() = saying(QStringLiteral("El mapa no muestra capas"));
  return sections;
}

}  // namespace motor

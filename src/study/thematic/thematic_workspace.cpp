#include "study/thematic/thematic_workspace.h"

#include <sstream>

#include "study/output/palette.h"
#include "study/output/workspace_text.h"
#include "study/thematic/legend_titles.h"
#include "study/thematic/thematic_palette.h"
#include "text/file_text.h"
#include "text/number_text.h"
#include "text/spanish_number.h"

namespace study {

namespace {

constexpr std::string_view kLimitsTable = "Limites";
constexpr std::string_view kNoFigureText = "sin datos";
// Points of the greatest sign: there is more room in a province than in a zone.
constexpr int kGreatestProvinceSign = 48;
constexpr int kGreatestZoneSign = 36;

bool showsLimits(const ThematicMap& map) { return map.frame.kind == UnitKind::region && map.units == UnitKind::zone; }

// A path below "Tablas" as seen from the map's folder.
std::string fromMap(const Study& study, const ThematicMap& map, const std::filesystem::path& path) {
  std::string words;
  for (auto up = thematicPath(study, map).parent_path(); !up.empty(); up = up.parent_path()) words += "..\\";
  for (const std::filesystem::path& part : path) words += (words.back() == '\\' ? "" : "\\") + text::fromPath(part);
  return words;
}

std::string brush(int colour) {
  return "Brush (2," + std::to_string(colour) + "," + std::to_string(palette::kPaper) + ")";
}

std::string filled(int colour, int line) { return brush(colour) + " Pen (1,2," + std::to_string(line) + ")"; }

std::string colourTheme(int base, const std::vector<double>& limits) {
  const std::vector<int> colours = palette::sequence(limits.size() - 1);
  std::ostringstream words;
  words << "shade " << base << " with Valor ranges apply all use all " << brush(colours.front()) << "\n";
  for (std::size_t i = 0; i < colours.size(); ++i) {
    words << "  " << text::number(limits[i]) << ": " << text::number(limits[i + 1]) << " "
          << filled(colours[i], palette::kThematicLine) << (i + 1 < colours.size() ? " ,\n" : "\n");
  }
  words << "  default " << filled(palette::kNoFigure, palette::kNoFigureLine) << "\n";
  return words.str();
}

std::string signTheme(int base, UnitKind units, double greatest) {
  const int points = units == UnitKind::province ? kGreatestProvinceSign : kGreatestZoneSign;
  std::ostringstream words;
  words << "shade " << base << " with Valor graduated 0:0 " << text::number(greatest) << ":" << points << " Symbol (34,"
        << palette::kSign << "," << points << ") vary size by \"SQRT\"\n";
  return words.str();
}

// Names the units that lie bare in a map of counts; it shades all of them alike.
std::string noFigureTheme(int base) {
  return "shade " + std::to_string(base) + " with 1 values 1 " + filled(palette::kNoFigure, palette::kNoFigureLine) +
         "\n";
}

std::string layers(const ThematicMap& map, int theme, bool namesNoFigure) {
  const bool counts = isCount(map.indicator);
  const bool sparse = showsLimits(map);
  std::string lines = "Set Map\n";
  if (sparse) {
    lines += layerLines(1, {.display = "Global", .penWidth = 1, .penColour = palette::kThematicLimit, .brush = 1});
  }
  lines += "  Layer " + std::to_string(theme) + "\n    Display Value\n";
  lines += layerLines(theme + 1, {.display = "Graphic",
                                  .penColour = counts ? palette::kSignGroundLine : palette::kThematicLine,
                                  .fill = palette::kSignGround,
                                  .labelStyle = kHalo,
                                  .labelSize = 8,
                                  .labels = true,
                                  .labelsUpTo = sparse ? 310 : 0,
                                  .selectable = true});
  if (namesNoFigure) lines += "  Layer " + std::to_string(theme + 2) + "\n    Display Value\n";
  lines += layerLines(theme + (namesNoFigure ? 3 : 2),
                      {.display = "Global", .penColour = palette::kNoFigureLine, .fill = palette::kNoFigure});
  return lines;
}

std::string legend(const Study& study, const ThematicMap& map, int theme, const std::vector<std::string>& rows) {
  const std::string onOff = rows.empty() ? "Off" : "On";
  std::ostringstream words;
  words << "Set Legend\n  Layer " << theme << "\n    Display On\n    Shades " << onOff
        << "\n    Symbols On\n    Lines Off\n    Count " << onOff << "\n    Title \"" << legendTitle(map.indicator)
        << "\" Font (\"Verdana\",1,9,0)\n    Subtitle \""
        << legendSubtitle(map.indicator, map.sex, study.years[map.year]) << "\" Font (\"Verdana\",0,8,0)\n";
  if (rows.empty()) return words.str();
  words << "    Ascending Off\n    Ranges Font (\"Verdana\",0,8,0)\n      \"" << kNoFigureText << "\" Display On";
  for (const std::string& row : rows) words << " ,\n      \"" << row << "\" Display On";
  words << "\n";
  return words.str();
}

std::string noFigureLegend(int theme) {
  std::ostringstream words;
  words << "  Layer " << theme
        << "\n    Display On\n    Shades On\n    Symbols Off\n    Lines Off\n    Count Off\n    Title \"\" Font "
           "(\"Verdana\",1,9,0)\n    Subtitle \"\" Font (\"Verdana\",0,8,0)\n    Ascending Off\n    Ranges Font "
           "(\"Verdana\",0,8,0)\n      \"\" Display Off ,\n      \""
        << kNoFigureText << "\" Display On\n";
  return words.str();
}

}  // namespace

std::vector<std::string> classTexts(const std::vector<double>& limits) {
  constexpr int kDecimals = 6;
  const auto written = [](double limit) { return text::shortSpanishNumber(limit, kDecimals); };
  std::vector<std::string> texts;
  const std::size_t classes = limits.size() - 1;
  for (std::size_t i = 0; i < classes; ++i) {
    if (i + 1 == classes && classes > 1) {
      texts.push_back(written(limits[i]) + " y más");
    } else if (i == 0 && classes > 1) {
      texts.push_back("menos de " + written(limits[1]));
    } else {
      texts.push_back(written(limits[i]) + " a " + written(limits[i + 1]));
    }
  }
  return texts;
}

std::string thematicWorkspace(const Study& study, const ThematicMap& map, const ThematicScales& scales,
                              const MapProjection& projection, bool isComplete) {
  const bool limits = showsLimits(map);
  const bool counts = isCount(map.indicator);
  const bool namesNoFigure = counts && !isComplete;
  const int theme = limits ? 2 : 1;
  std::vector<std::string> tables{std::string(kThematicTable), std::string(kBaseTable)};
  std::string text = workspaceHeader() + openTable(map.indicator, kThematicTable) +
                     openTable(fromMap(study, map, basePath(study, map)), kBaseTable);
  if (limits) {
    text += openTable(fromMap(study, map, std::filesystem::path("Base") / "Provincias"), kLimitsTable);
    tables.insert(tables.begin(), std::string(kLimitsTable));
  }
  text += mapFrom(tables, mapTitle(study, map)) + wholeRegion(projection);
  std::vector<std::string> rows;
  if (namesNoFigure) text += noFigureTheme(theme + 1);
  if (counts) {
    text += signTheme(theme, map.units, scales.greatest(map));
  } else {
    text += colourTheme(theme, scales.limits(map));
    rows = classTexts(scales.limits(map));
  }
  text += layers(map, theme, namesNoFigure) + legend(study, map, theme, rows);
  return namesNoFigure ? text + noFigureLegend(theme + 2) : text;
}

}  // namespace study

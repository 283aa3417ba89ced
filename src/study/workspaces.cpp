#include "study/workspaces.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>
#include <string_view>

#include "study/coordinate_space.h"
#include "study/palette.h"
#include "study/study_error.h"
#include "study/windows1252.h"
#include "text/number_text.h"

namespace study {

namespace {

// What differs between the layers of our maps. Distances are the map's width in kilometres.
struct LayerLook {
  std::string_view display;  // Graphic, Global or Off
  int penWidth;
  int penColour;
  int fill;
  int labelStyle;  // 1 bold, 256 with a halo, added up
  int labelSize;   // points
  bool labels;
  int labelsUpTo;  // the widest map that shows them; 0: every map does
  bool selectable;
};

constexpr int kBoldHalo = 257;
constexpr int kHalo = 256;

std::string header() { return "!Workspace\n!Version 600\n!Charset WindowsLatin1\n"; }

std::string openTable(const std::string& table) {
  return "Open Table \"" + table + "\" As " + table + " Interactive\n";
}

std::string mapFrom(const std::string& tables) {
  return "Map From " + tables +
         "\n  Position (0.05,0.05) Units \"in\"\n  Width 7 Units \"in\" Height 5.2 Units \"in\"\n"
         "Set Window FrontWindow() ScrollBars Off Autoscroll On\n";
}

// The whole region with room around it, in windows of any usual shape.
std::string view(const Extent& region) {
  const double kilometres = std::max(region.width() * 1.12, region.height() * 1.5) / 1000;
  const Point centre = region.centre();
  std::ostringstream words;
  words << "Set Map\n  CoordSys " << kCoordSys << "\n  Center (" << text::number(std::round(centre.x)) << ","
        << text::number(std::round(centre.y)) << ")\n  Zoom " << text::number(std::ceil(kilometres / 10) * 10)
        << " Units \"km\"\n  Preserve Zoom Display Zoom\n"
           "  Distance Units \"km\" Area Units \"sq km\" XY Units \"m\"\n";
  return words.str();
}

std::string_view onOff(bool on) { return on ? "On" : "Off"; }

std::string layer(int number, const LayerLook& look) {
  std::ostringstream words;
  words << "  Layer " << number << "\n    Display " << look.display << "\n"
        << "    Global Pen (" << look.penWidth << ",2," << look.penColour << ") Brush (2," << look.fill << ","
        << palette::kPaper << ") Symbol (35,0,12) Line (" << look.penWidth << ",2," << look.penColour
        << ") Font (\"Verdana\",0,9,0)\n"
        << "    Zoom (0, 100000) Units \"km\" Off\n"
        << "    Label Line None Position Center Font (\"Verdana\"," << look.labelStyle << "," << look.labelSize << ","
        << palette::kInk << "," << palette::kPaper << ") Pen (1,2,0)\n      With Nombre\n"
        << "      Parallel On Auto " << onOff(look.labels) << " Overlap Off Duplicates Off Offset 2\n      Visibility ";
  if (look.labelsUpTo > 0) {
    words << "Zoom (0, " << look.labelsUpTo << ") Units \"km\"\n";
  } else {
    words << "On\n";
  }
  words << "    Selectable " << onOff(look.selectable) << "\n";
  return words.str();
}

constexpr LayerLook kProvinceOutlines{
    "Graphic", 2, palette::kProvinceLine, palette::kProvinceFill, kBoldHalo, 9, true, 0, false};
constexpr LayerLook kZones{"Global", 1, palette::kZoneLine, palette::kZoneFill, kHalo, 8, true, 170, true};
constexpr LayerLook kHiddenRegion{"Off", 2,    palette::kProvinceLine, palette::kProvinceFill, kBoldHalo, 10, false,
                                  0,     false};
constexpr LayerLook kStatistics{"Graphic", 1,   palette::kProvinceLine, palette::kProvinceFill, kBoldHalo, 9, true,
                                0,         true};

}  // namespace

std::string yearWorkspace(int year, const Extent& region) {
  const std::string suffix = std::to_string(year);
  const std::string provinces = "Provincias" + suffix;
  const std::string zones = "ZonasBasicas" + suffix;
  const std::string whole = "Veldoria" + suffix;
  return header() + openTable(provinces) + openTable(zones) + openTable(whole) +
         mapFrom(provinces + "," + zones + "," + whole) + view(region) + "Set Map\n" + layer(1, kProvinceOutlines) +
         layer(2, kZones) + layer(3, kHiddenRegion);
}

std::string statisticsWorkspace(const Extent& region) {
  return header() + openTable("Estadisticas") + mapFrom("Estadisticas") + view(region) + "Set Map\n" +
         layer(1, kStatistics);
}

void writeWorkspace(const std::filesystem::path& file, const std::string& text) {
  std::string lines;
  for (const char c : toWindows1252(text)) {
    if (c == '\n') lines += '\r';
    lines += c;
  }
  std::ofstream out(file, std::ios::binary);
  out << lines;
  out.close();
  if (!out) throw StudyError("the file " + file.string() + " could not be written");
}

}  // namespace study

#include "study/output/workspace_text.h"

#include <fstream>
#include <sstream>

#include "study/model/study_error.h"
#include "study/model/windows1252.h"
#include "study/output/palette.h"

namespace study {

namespace {

std::string_view onOff(bool on) { return on ? "On" : "Off"; }

std::string quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

}  // namespace

std::string workspaceHeader() { return "!Workspace\n!Version 600\n!Charset WindowsLatin1\n"; }

std::string openTable(std::string_view path, std::string_view alias) {
  return "Open Table " + quoted(path) + " As " + std::string(alias) + " Interactive\n";
}

std::string mapFrom(const std::vector<std::string>& tables, std::string_view title) {
  std::string list;
  for (const std::string& table : tables) list += (list.empty() ? "" : ",") + table;
  return "Map From " + list +
         "\n  Position (0.05,0.05) Units \"in\"\n  Width 7.5 Units \"in\" Height 5 Units \"in\"\n"
         "Set Window FrontWindow() Title " +
         quoted(title) + " ScrollBars Off Autoscroll On\n";
}

std::string wholeRegion(const MapProjection& projection) {
  return "Set Map\n  CoordSys " + projection.coordSys +
         "\n  Zoom Entire\n  Preserve Zoom Display Zoom\n"
         "  Distance Units \"km\" Area Units \"sq km\" XY Units \"m\"\n";
}

std::string layerLines(int number, const LayerLook& look) {
  std::ostringstream words;
  words << "  Layer " << number << "\n    Display " << look.display << "\n"
        << "    Global Pen (" << look.penWidth << ",2," << look.penColour << ") Brush (" << look.brush << ","
        << look.fill << "," << palette::kPaper << ") Symbol (35,0,12) Line (" << look.penWidth << ",2,"
        << look.penColour << ") Font (\"Verdana\",0,9,0)\n"
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

void writeWorkspace(const std::filesystem::path& file, std::string_view text) {
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

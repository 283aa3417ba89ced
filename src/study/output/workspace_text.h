#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "study/output/map_projection.h"

// The statements that the study's workspaces are made of, in UTF-8 with plain line ends.
namespace study {

// What differs between the layers of our maps. Distances are the map's width in kilometres.
struct LayerLook {
  std::string_view display;  // Graphic, Global, Value or Off
  int penWidth = 1;
  int penColour = 0;
  int brush = 2;  // pattern: 1 none, 2 solid
  int fill = 0;
  int labelStyle = 0;  // kBold and kHalo, added up
  int labelSize = 8;   // points
  bool labels = false;
  int labelsUpTo = 0;  // the widest map that shows them; 0: every map does
  bool selectable = false;
};

inline constexpr int kBold = 1;
inline constexpr int kHalo = 256;

[[nodiscard]] std::string workspaceHeader();

// `path` as seen from the workspace, without its ending; `alias` is the table's name in the session.
[[nodiscard]] std::string openTable(std::string_view path, std::string_view alias);

// A map window of these tables, the first on top. The title heads the map where it is printed, what follows a ". " in
// it as the subtitle.
[[nodiscard]] std::string mapFrom(const std::vector<std::string>& tables, std::string_view title);

// The map's system, and the whole region, as large as the window lets it be.
[[nodiscard]] std::string wholeRegion(const MapProjection& projection);

// The lines of one layer, to follow a "Set Map" line.
[[nodiscard]] std::string layerLines(int number, const LayerLook& look);

// Writes a workspace as map programs do: windows-1252, lines that end in CR LF. Throws StudyError.
void writeWorkspace(const std::filesystem::path& file, std::string_view text);

}  // namespace study

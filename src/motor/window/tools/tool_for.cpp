#include "motor/window/tools/tool_for.h"

#include "motor/window/tools/click_tool.h"
#include "motor/window/tools/draw_tool.h"
#include "motor/window/tools/info_tool.h"
#include "motor/window/tools/label_tool.h"
#include "motor/window/tools/pan_tool.h"
#include "motor/window/tools/ruler_tool.h"
#include "motor/window/tools/take_out_tool.h"
#include "motor/window/tools/zoom_tool.h"

namespace motor {

namespace {

template <typename T>
std::unique_ptr<MapTool> make(const Tool& tool, MapSite& site) {
  return std::make_unique<T>(site, tool);
}

struct Row {
  int command;
  std::unique_ptr<MapTool> (*make)(const Tool& tool, MapSite& site);
};

constexpr Row kRows[] = {
    {tools::kGrabber, make<PanTool>},     {tools::kZoomIn, make<ZoomTool>}, {tools::kZoomOut, make<ZoomTool>},
    {tools::kInfo, make<InfoTool>},       {tools::kLabel, make<LabelTool>}, {tools::kRuler, make<RulerTool>},
    {tools::kDragMap, make<TakeOutTool>},
};

}  // namespace

std::unique_ptr<MapTool> toolFor(const Tool& tool, MapSite& site) {
  for (const Row& row : kRows) {
    if (row.command == tool.command) return row.make(tool, site);
  }
  const bool draws = tool.command == 0 && tool.drawMode != draw_modes::kPoint;
  return draws ? make<DrawTool>(tool, site) : make<ClickTool>(tool, site);
}

}  // namespace motor

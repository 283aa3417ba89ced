#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

// The three rows of map buttons as data. The rows differ on purpose in the order of their last buttons, in the
// information tool, in the spelling of the whole-map statement and in one label.
namespace atlas {

enum class ToolbarAction { none, statement, help, toggleSelector, toggleLegend };

struct ToolbarButton {
  std::string_view toolTip;
  std::string_view picture;  // the artwork's name
  ToolbarAction action = ToolbarAction::none;
  std::string_view statement;
  std::string_view label;  // the tool's name after "Comando actual: "; empty: the label is left as it is
};

// A row's buttons by index. A button without a picture does not exist on the form.
using Toolbar = std::span<const ToolbarButton>;

[[nodiscard]] Toolbar thematicToolbar();    // Image2: the thematic maps
[[nodiscard]] Toolbar statisticsToolbar();  // Image3: the statistics map
[[nodiscard]] Toolbar dataToolbar();        // Image4: the year maps

// The indices of a row's buttons that exist on the form.
[[nodiscard]] std::vector<int> toolbarIndices(Toolbar toolbar);

}  // namespace atlas

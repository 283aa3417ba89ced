#pragma once

#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/tree_view.h"

namespace headless {

// A line "show CONTROL.PROPERTY VALUE" for each property that a control has, and one for each item of a list and each
// tab.
[[nodiscard]] std::vector<std::string> propertyLines(const forms::Control& control);

// The texts of a tree's nodes, two blanks a level.
[[nodiscard]] std::vector<std::string> treeLines(const forms::TreeView& tree);

}  // namespace headless

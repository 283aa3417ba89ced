#pragma once

#include <string>

#include "forms/tree_view.h"

namespace screen {

// What is copied of a tree of indicators, for a spreadsheet.
struct CopiedText {
  std::string text;  // a heading and the rows, columns parted by tabs, each line ended; empty without rows
  int rows = 0;
};

// One row for each indicator of the tree: Año, Unidad, Sexo, Tipo, Indicador, Valor, as the nodes say them; what a tree
// does not say stays empty. A unit without indicators has a row of its own.
[[nodiscard]] CopiedText treeText(const forms::TreeView& tree);

// The same of one node of the tree and all below it, with what stands above it in the columns. A node that has no
// indicators below gives one row, which ends with it.
[[nodiscard]] CopiedText branchText(const forms::TreeView& tree, const forms::Node& branch);

}  // namespace screen

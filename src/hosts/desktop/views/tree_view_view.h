#pragma once

#include <unordered_map>

#include "forms/tree_view.h"
#include "hosts/desktop/views/control_view.h"
#include "hosts/screen/tree_text.h"

class QTreeWidgetItem;

namespace desktop {

class IndicatorTree;

// The tree of indicators. What the program opens is open; the rest is for the user to open, each time anew.
class TreeViewView : public ControlView {
 public:
  TreeViewView(forms::TreeView& tree, QWidget& parent, screen::ProgramCalls& calls);
  void cleared() override;
  void nodeAdded(const forms::Node& node) override;
  void nodeExpanded(const forms::Node& node) override;

 private:
  void addWithChildren(const forms::Node& node);
  // The user has opened or closed the item.
  void itemToggled(const QTreeWidgetItem& item, bool expanded);

  void copy(const screen::CopiedText& rows) const;

  forms::TreeView& tree_;
  IndicatorTree* rows_;
  std::unordered_map<const forms::Node*, QTreeWidgetItem*> items_;
};

}  // namespace desktop

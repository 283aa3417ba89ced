#pragma once

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "forms/tree_view.h"
#include "hosts/desktop/views/control_view.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace desktop {

// The tree of indicators. A branch that the user has opened is opened again when the program has made the tree anew.
class TreeViewView : public ControlView {
 public:
  TreeViewView(forms::TreeView& tree, QWidget& parent, ProgramCalls& calls);
  void cleared() override;
  void nodeAdded(const forms::Node& node) override;
  void nodeExpanded(const forms::Node& node) override;

 private:
  using TextPath = std::vector<std::string>;

  void addWithChildren(const forms::Node& node);
  // The user has opened or closed the item.
  void itemToggled(const QTreeWidgetItem& item, bool expanded);

  void openAgain(forms::Node& node, QTreeWidgetItem& item);
  [[nodiscard]] static TextPath textPathOf(const forms::Node& node);

  forms::TreeView& tree_;
  QTreeWidget* rows_;
  std::unordered_map<const forms::Node*, QTreeWidgetItem*> items_;
  std::set<TextPath> openedByUser_;
};

}  // namespace desktop

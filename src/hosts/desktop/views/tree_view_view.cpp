#include "hosts/desktop/views/tree_view_view.h"

#include <QSignalBlocker>
#include <QTreeWidget>
#include <vector>

#include "hosts/desktop/theme.h"
#include "hosts/desktop/views/copying.h"
#include "hosts/desktop/views/indicator_tree.h"

namespace desktop {
namespace {

QTreeWidgetItem* itemFor(const forms::Node& node, const QFont& font) {
  auto* item = new QTreeWidgetItem({QString::fromStdString(node.text())});
  if (node.style().color) item->setForeground(0, theme::color(*node.style().color));
  if (node.style().bold) {
    QFont bold = font;
    bold.setBold(true);
    item->setFont(0, bold);
  }
  return item;
}

// The model's node behind an item, by its position in the tree.
forms::Node* nodeOf(const forms::TreeView& tree, const QTreeWidget& rows, const QTreeWidgetItem& item) {
  std::vector<std::size_t> path;
  for (const QTreeWidgetItem* at = &item; at != nullptr; at = at->parent()) {
    const QTreeWidgetItem* above = at->parent();
    auto* own = const_cast<QTreeWidgetItem*>(at);
    path.push_back(
        static_cast<std::size_t>(above == nullptr ? rows.indexOfTopLevelItem(own) : above->indexOfChild(own)));
  }
  const auto* siblings = &tree.roots();
  forms::Node* node = nullptr;
  for (auto step = path.rbegin(); step != path.rend(); ++step) {
    if (*step >= siblings->size()) return nullptr;
    node = (*siblings)[*step].get();
    siblings = &node->children();
  }
  return node;
}

}  // namespace

TreeViewView::TreeViewView(forms::TreeView& tree, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(tree, calls), tree_(tree), rows_(new IndicatorTree(parent)) {
  connect(rows_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { itemToggled(*item, true); });
  connect(rows_, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) { itemToggled(*item, false); });
  connect(rows_, &IndicatorTree::copyAsked, this, [this](QTreeWidgetItem* branch) {
    const forms::Node* node = nodeOf(tree_, *rows_, *branch);
    if (node != nullptr) copy(screen::branchText(tree_, *node));
  });
  connect(rows_, &IndicatorTree::copyAllAsked, this, [this] { copy(screen::treeText(tree_)); });
  adopt(rows_);
  for (const auto& root : tree.roots()) addWithChildren(*root);
}

void TreeViewView::cleared() {
  items_.clear();
  rows_->clear();
}

void TreeViewView::nodeAdded(const forms::Node& node) {
  QTreeWidgetItem* item = itemFor(node, rows_->font());
  const auto parent = items_.find(node.parent());
  if (parent == items_.end()) {
    rows_->addTopLevelItem(item);
  } else {
    parent->second->addChild(item);
  }
  items_[&node] = item;
}

void TreeViewView::nodeExpanded(const forms::Node& node) {
  const QSignalBlocker quiet(rows_);
  const auto item = items_.find(&node);
  if (item != items_.end()) item->second->setExpanded(node.expanded());
}

void TreeViewView::addWithChildren(const forms::Node& node) {
  nodeAdded(node);
  for (const auto& child : node.children()) addWithChildren(*child);
  nodeExpanded(node);
}

void TreeViewView::itemToggled(const QTreeWidgetItem& item, bool expanded) {
  forms::Node* node = nodeOf(tree_, *rows_, item);
  if (node != nullptr) node->userExpand(expanded);
}

void TreeViewView::copy(const screen::CopiedText& rows) const {
  copyRows(*rows_, QString::fromStdString(rows.text), rows.rows);
}

}  // namespace desktop

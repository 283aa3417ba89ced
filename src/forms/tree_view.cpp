#include "forms/tree_view.h"

#include "forms/form.h"

namespace forms {

Node::Node(TreeView& tree, Node* parent, std::size_t position, std::string text, NodeStyle style)
    : tree_(tree), parent_(parent), position_(position), text_(std::move(text)), style_(style) {}

void Node::setExpanded(bool expanded) {
  expanded_ = expanded;
  tree_.form().listener().nodeExpanded(tree_, *this);
}

std::string Node::path() const {
  const std::string own = std::to_string(position_);
  return parent_ == nullptr ? own : parent_->path() + "/" + own;
}

Node& TreeView::add(Node* parent, const std::string& text, NodeStyle style) {
  auto& siblings = parent == nullptr ? roots_ : parent->children_;
  siblings.push_back(std::make_unique<Node>(*this, parent, siblings.size() + 1, text, style));
  form().listener().nodeAdded(*this, *siblings.back());
  return *siblings.back();
}

void TreeView::clear() {
  roots_.clear();
  form().listener().cleared(*this);
}

void TreeView::restoreStored() {
  Control::restoreStored();
  roots_.clear();
}

}  // namespace forms

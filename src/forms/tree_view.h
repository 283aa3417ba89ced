#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/control.h"

namespace forms {

// How a node's text is drawn; the default colour is the control's own.
struct NodeStyle {
  bool bold = false;
  std::optional<Color> color;
};

class Node {
 public:
  Node(TreeView& tree, Node* parent, std::size_t position, std::string text, NodeStyle style);

  [[nodiscard]] Node* parent() const { return parent_; }
  [[nodiscard]] const std::vector<std::unique_ptr<Node>>& children() const { return children_; }
  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] const NodeStyle& style() const { return style_; }
  [[nodiscard]] bool expanded() const { return expanded_; }
  void setExpanded(bool expanded);
  // Positions from the root, counted from 1: "1/2/1".
  [[nodiscard]] std::string path() const;
  // The user opens or closes it; nobody is told.
  void userExpand(bool expanded) { expanded_ = expanded; }

 private:
  friend class TreeView;
  TreeView& tree_;
  Node* parent_;
  std::size_t position_;
  std::string text_;
  NodeStyle style_;
  bool expanded_ = false;
  std::vector<std::unique_ptr<Node>> children_;
};

// A tree of texts. Nodes are always appended; a node stays valid until the tree is cleared.
class TreeView : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const std::vector<std::unique_ptr<Node>>& roots() const { return roots_; }
  // Adds a child of `parent`, or a root when it is null.
  Node& add(Node* parent, const std::string& text, NodeStyle style = {});
  void clear();
  void restoreStored() override;

 private:
  friend class Node;
  std::vector<std::unique_ptr<Node>> roots_;
};

}  // namespace forms

#pragma once

#include <map>

#include "hosts/windows/views/control_view.h"

namespace windows {

// The tree of indicators, a native tree view whose items we draw: bold and coloured ones, long texts broken into lines,
// and a figure at a text's end in a column of its own at the right. Branches and the whole can be copied.
class TreeViewView : public ControlView {
 public:
  TreeViewView(forms::TreeView& tree, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;
  void rescale() override;
  void cleared() override;
  void nodeAdded(const forms::Node& node) override;
  void nodeExpanded(const forms::Node& node) override;
  [[nodiscard]] std::optional<LRESULT> notified(NMHDR& notice) override;
  [[nodiscard]] forms::Color surface() const override;

 protected:
  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;

 private:
  [[nodiscard]] LRESULT draw(NMTVCUSTOMDRAW& drawing);
  void drawItem(Canvas& canvas, const forms::Node& node, const RECT& row, UINT state) const;
  void drawMark(Canvas& canvas, const forms::Node& node, const RECT& row, int left) const;
  void drawHint() const;
  void expanded(const NMTREEVIEWW& change);
  // The node that is chosen, or null.
  [[nodiscard]] const forms::Node* chosen() const;
  void copyChosen() const;
  // Chooses the row at a point of the window, if there is one.
  void chooseAt(LPARAM point) const;
  void offerMenu(LPARAM point);
  void fitRows();
  [[nodiscard]] int linesOf(const forms::Node& node) const;
  [[nodiscard]] int leftOf(const forms::Node& node) const;
  [[nodiscard]] int lineHeight() const;
  [[nodiscard]] HFONT fontOf(const forms::Node& node) const;
  void addWithChildren(const forms::Node& node);

  forms::TreeView& tree_;
  FontHandle bold_;
  std::map<const forms::Node*, HTREEITEM> items_;
  int fittedWidth_ = 0;
  bool quiet_ = false;  // the program opens and closes
};

}  // namespace windows

#pragma once

#include <QString>
#include <vector>

#include "hosts/desktop/pages/reading/page_style.h"
#include "hosts/desktop/pages/reading/page_tree.h"
#include "hosts/desktop/pages/reading/style_sheet.h"

namespace desktop::pages {

// How the elements of a page look: by what they are, by their attributes, by the page's style sheets and by their own
// style, the later over the earlier.
class PageStyles {
 public:
  PageStyles();

  // Takes in a style sheet of the page.
  void add(QStringView css) {
    sheet_.add(css);
    known_.clear();
    oldest_ = 0;
  }

  // The style of an element that stands in one of the style `outer`. The elements asked for outlive this.
  [[nodiscard]] PageStyle styleOf(const Node& node, const PageStyle& outer);

 private:
  // A part of a table that was asked for lately: tables have many cells and rows, and few that differ.
  struct Known {
    const Node* node = nullptr;
    PageStyle outer;
    PageStyle style;
  };

  [[nodiscard]] PageStyle readStyle(const Node& node, const PageStyle& outer);

  StyleSheet sheet_;
  int declarationsLeft_;
  std::vector<Known> known_;
  std::size_t oldest_ = 0;
};

// What the element's attributes say of its look, as declarations: `bgcolor`, `align`, `nowrap`, `<font size>` and the
// like; of a cell also what its table's `border` and `cellpadding` say.
[[nodiscard]] Declarations attributeDeclarations(const Node& node);

}  // namespace desktop::pages

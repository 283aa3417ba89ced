#pragma once

#include "hosts/desktop/pages/reading/flow_writer.h"
#include "hosts/desktop/pages/reading/page_styles.h"
#include "hosts/desktop/pages/reading/page_tree.h"
#include "hosts/desktop/pages/reading/style_classes.h"
#include "hosts/desktop/pages/reading/table_grid.h"

namespace desktop::pages {

// Where on the page something is written.
struct PagePlace {
  double left = 0;  // pixels from the edges of the page or the cell
  double right = 0;
  QString link;           // that the text leads to, or empty
  int cells = 0;          // that this stands in, one in the other
  int boxes = 0;          // of them, those that are blocks with a frame
  int* number = nullptr;  // of the last item of the list at hand
};

// Writes the elements of a page as markup, one after the other.
class PageWriter {
 public:
  // Writes behind `html`; this and `styles` outlive the writer.
  PageWriter(QString& html, PageStyles& styles, double zoom)
      : html_(html), styles_(styles), zoom_(zoom), classes_(zoom), flow_(html, classes_, zoom) {}

  // What an element holds.
  void content(const Node& node, const PageStyle& style, const PagePlace& place);
  void end() { flow_.endLine(); }
  // Whether something had to be left out.
  [[nodiscard]] bool isCut() const { return isCut_; }
  // The style sheet that the page needs, for its head.
  [[nodiscard]] const QString& sheet() const { return classes_.sheet(); }

 private:
  void element(const Node& node, const PageStyle& outer, const PagePlace& place);
  void inLine(const Node& node, PageStyle style, const PagePlace& place);
  void block(const Node& node, const PageStyle& style, const PageStyle& outer, const PagePlace& place);
  void blockContent(const Node& node, const PageStyle& style, const PagePlace& place);
  void box(const Node& node, const PageStyle& style, const PagePlace& place);
  void mark(const Node& item, const PageStyle& style, const PagePlace& place);
  void picture(const Node& node, const PageStyle& style, const PagePlace& place);
  void rule(const PageStyle& style, const PageStyle& outer, const PagePlace& place);
  void frame(const Node& node, const PageStyle& style, const PageStyle& outer, const PagePlace& place);
  void table(const Node& node, const PageStyle& style, const PageStyle& outer, const PagePlace& place);
  void rows(const TableGrid& grid, const PagePlace& place);
  void cell(const GridCell& cell, const Length& width, double least, const PagePlace& place);
  void strut(double pixels);
  void beginTable(const PageStyle& style, double left, const Length& width, double spacing);
  void beginCell(const PageStyle& style, const QString& attributes, const PagePlace& place);

  QString& html_;
  PageStyles& styles_;
  double zoom_;
  StyleClasses classes_;
  FlowWriter flow_;
  int pictures_ = 0;
  std::size_t placesLeft_ = kMostPlaces;
  bool isCut_ = false;
};

}  // namespace desktop::pages

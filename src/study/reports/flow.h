#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "study/pages/sheet.h"
#include "study/reports/page.h"

namespace study::reports {

// A section as the contents list it. Pages count from 1.
struct ContentsEntry {
  std::string title;
  std::size_t page = 0;
};

// Lays out a report from top to bottom, page after page, and numbers its tables and figures.
class Flow {
 public:
  // `source` stands below each table and figure.
  explicit Flow(std::string source) : source_(std::move(source)) {}

  // A page without running head or number, which the caller paints.
  [[nodiscard]] Page& plainPage();

  // Begins a page. Untitled, it is in no list of contents.
  void newPage();
  void section(std::string_view title);
  // Below what stands there; on a new page where less than `height` is left for it and what belongs to it.
  void subsection(std::string_view title, double height);
  // Paragraphs with blank lines between them.
  void paragraphs(std::string_view text);
  void notes(const std::vector<std::string>& notes);

  // A numbered caption ("Gráfico 3. ...") and the box of `height` below it, for the caller to paint in.
  [[nodiscard]] QRectF figure(std::string_view kind, std::string_view caption, double height);
  // Below a figure.
  void source(const std::vector<std::string>& notes = {});

  // A numbered table on as many pages as it needs, the header on each; below it its notes and the source.
  void table(const pages::Sheet& sheet, const std::vector<std::string>& notes);

  void space(double height) { y_ += height; }
  // Begins a page where less than `height` is left.
  void need(double height);
  [[nodiscard]] double room() const { return kBottom - y_; }
  [[nodiscard]] double y() const { return y_; }
  [[nodiscard]] Page& page() { return pages_.back(); }
  [[nodiscard]] std::size_t pageCount() const { return pages_.size(); }

  // Lists the sections on a page, from `top` down. Pages count from 1.
  void paintContents(std::size_t page, double top);
  // The height of that list for so many sections.
  [[nodiscard]] static double contentsHeight(std::size_t sections);

  // With running heads, of the title and the page's section, and page numbers.
  [[nodiscard]] std::vector<Page> finished(std::string_view title) &&;

 private:
  void lines(std::string_view text, const TextStyle& style);
  void caption(const std::string& text);
  [[nodiscard]] std::string sectionOf(std::size_t page) const;
  [[nodiscard]] double notesHeight(const std::vector<std::string>& notes) const;
  [[nodiscard]] std::string numbered(std::string_view kind, std::string_view caption);

  std::string source_;
  std::vector<Page> pages_;
  std::vector<bool> isPlain_;
  std::vector<ContentsEntry> contents_;
  std::vector<std::pair<std::string, int>> numbers_;  // the last of each kind
  double y_ = kBottom;
};

}  // namespace study::reports

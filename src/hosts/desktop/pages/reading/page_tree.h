#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "hosts/desktop/pages/reading/html_reader.h"
#include "hosts/desktop/pages/reading/page_tags.h"

namespace desktop::pages {

// An element of a page, or a text of it.
struct Node {
  Tag tag = Tag::text;
  QString text;                       // of a text
  std::vector<Attribute> attributes;  // of an element
  Node* parent = nullptr;
  std::vector<std::unique_ptr<Node>> children;

  // The attribute's value, or a null string.
  [[nodiscard]] QString attribute(QLatin1String name) const;
  [[nodiscard]] bool has(QLatin1String name) const;
};

// How much of a page is taken in: beyond it the toolkit would keep the user waiting.
struct TreeLimits {
  std::size_t nodes = 400'000;
  std::size_t cells = 120'000;
  qsizetype characters = 4'000'000;  // of its texts
  std::size_t depth = 80;            // elements in elements; tags further in are as if they were not there
  int tables = 3;                    // tables in tables; the cells of those further in are blocks
  int nestedTables = 2000;           // tables in tables altogether
};

struct PageTree {
  std::unique_ptr<Node> html;  // holds the body alone
  QString title;               // the first that says something, blanks simplified
  QString styles;              // what the style elements hold
  QStringList sheets;          // the addresses of the style sheets, a few at most
  bool isCut = false;          // there was more than the limits allow

  [[nodiscard]] const Node& body() const { return *html->children.front(); }
};

// The page as a tree. End tags that HTML leaves out are put in (cells, rows, items, paragraphs); others that match
// nothing are passed over. What stands in a table outside its cells stands before the table: tables hold sections,
// rows, columns and captions only, rows hold cells only.
[[nodiscard]] PageTree treeOf(QStringView html, const TreeLimits& limits = {});

}  // namespace desktop::pages

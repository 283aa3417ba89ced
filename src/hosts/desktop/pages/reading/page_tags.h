#pragma once

#include <QStringView>

namespace desktop::pages {

// The elements that a page is built of. Everything else is `other`: its text is shown as if the tag were not there.
enum class Tag {
  text,
  document,
  other,
  // passed over with all that they hold
  leftOut,
  // in a line
  a,
  b,
  big,
  br,
  code,
  del,
  em,
  font,
  i,
  img,
  ins,
  nobr,
  q,
  s,
  small,
  span,
  strong,
  sub,
  sup,
  tt,
  u,
  wbr,
  // blocks
  address,
  blockquote,
  body,
  center,
  dd,
  div,
  dl,
  dt,
  h1,
  h2,
  h3,
  h4,
  h5,
  h6,
  hr,
  html,
  li,
  ol,
  p,
  pre,
  section,
  ul,
  // tables
  caption,
  col,
  colgroup,
  table,
  tbody,
  td,
  tfoot,
  th,
  thead,
  tr,
  // of the page as a whole
  frame,
  link,
  style,
  title,
};

[[nodiscard]] Tag tagNamed(QStringView name);

// How an element takes part in the page.
[[nodiscard]] bool isBlock(Tag tag);    // stands in lines of its own; table parts do not count
[[nodiscard]] bool isVoid(Tag tag);     // holds nothing and has no end tag
[[nodiscard]] bool isSection(Tag tag);  // thead, tbody, tfoot
[[nodiscard]] bool isCell(Tag tag);
[[nodiscard]] bool isTablePart(Tag tag);  // stands only in a table: parts, rows, cells, columns, the caption

}  // namespace desktop::pages

#include "hosts/desktop/pages/reading/page_writer.h"

#include "hosts/desktop/pages/reading/addresses.h"
#include "hosts/desktop/pages/reading/list_numbers.h"
#include "hosts/desktop/pages/reading/markup.h"
#include "hosts/desktop/pages/reading/text_measure.h"

namespace desktop::pages {
namespace {

constexpr int kMostBoxes = 2;              // blocks with a frame in each other
constexpr qsizetype kLongestBox = 20'000;  // characters of a block with a frame
constexpr int kMostPictures = 1000;
constexpr double kLeastPadding = 3;  // pixels between a text and a line beside it
constexpr double kRuleGap = 8;       // pixels above and below a rule
constexpr QColor kRuleColor{0xC8, 0xCE, 0xD6};

double pixelsOf(const Length& length) { return std::max(0.0, length.pixels()); }

bool hasTable(const Node& node) {
  return std::ranges::any_of(node.children,
                             [](const auto& child) { return child->tag == Tag::table || hasTable(*child); });
}

// Whether the block is written with a frame or a ground of its own. What it holds must be little enough to be laid out
// more than once.
bool isBox(const Node& node, const PageStyle& style, const PagePlace& place) {
  if (!style.background.isValid() && !style.hasBorder()) return false;
  return place.boxes < kMostBoxes && !hasTable(node) && textLength(node) <= kLongestBox;
}

// What the border and the padding of a side take.
double thickness(const PageStyle& style, Side side) {
  return style.padding[side] + (style.border[side].isSeen() ? style.border[side].pixels : 0);
}

// The number that a list or an item of it begins with; the items that follow have room to count on.
int itemNumber(const QString& written) {
  constexpr int kLargest = 1'000'000'000;
  return std::clamp(written.toInt(), -kLargest, kLargest);
}

QString attribute(const char* name, const QString& value) {
  return value.isEmpty() ? QString() : u' ' + QLatin1String(name) + QLatin1String("=\"") + value + u'"';
}

}  // namespace

void PageWriter::content(const Node& node, const PageStyle& style, const PagePlace& place) {
  for (const auto& child : node.children) {
    if (child->tag == Tag::text) {
      flow_.text(child->text, style.text, style.whiteSpace, place.link);
    } else if (child->tag != Tag::leftOut) {
      element(*child, style, place);
    }
  }
}

void PageWriter::element(const Node& node, const PageStyle& outer, const PagePlace& place) {
  const PageStyle style = styles_.styleOf(node, outer);
  if (style.isHidden) return;
  flow_.anchor(node.attribute(QLatin1String("id")));
  switch (node.tag) {
    case Tag::br:
      return flow_.lineBreak();
    case Tag::wbr:
      return;
    case Tag::img:
      return picture(node, style, place);
    case Tag::hr:
      return rule(style, outer, place);
    case Tag::frame:
      return frame(node, style, outer, place);
    case Tag::table:
      return table(node, style, outer, place);
    default:
      return isBlock(node.tag) || node.tag == Tag::caption ? block(node, style, outer, place)
                                                           : inLine(node, style, place);
  }
}

void PageWriter::inLine(const Node& node, PageStyle style, const PagePlace& place) {
  if (style.background.isValid()) style.text.background = style.background;
  PagePlace inner = place;
  if (node.tag == Tag::a) {
    flow_.anchor(node.attribute(QLatin1String("name")));
    const QString link = linkAddress(node.attribute(QLatin1String("href")));
    if (!link.isEmpty()) inner.link = link;
  }
  const bool isQuoted = node.tag == Tag::q;
  if (isQuoted) flow_.text(u"«", style.text, style.whiteSpace, inner.link);
  content(node, style, inner);
  if (isQuoted) flow_.text(u"»", style.text, style.whiteSpace, inner.link);
}

void PageWriter::block(const Node& node, const PageStyle& style, const PageStyle& outer, const PagePlace& place) {
  flow_.endLine();
  flow_.gap(pixelsOf(style.margin[kTop]));
  PagePlace inner = place;
  inner.left += pixelsOf(style.margin[kLeft]);
  inner.right += pixelsOf(style.margin[kRight]);
  int number = 0;
  if (node.tag == Tag::ol || node.tag == Tag::ul) {
    number = itemNumber(node.attribute(QLatin1String("start"))) - (node.has(QLatin1String("start")) ? 1 : 0);
    inner.number = &number;
  }
  if (isBox(node, style, place)) {
    box(node, style, inner);
  } else {
    blockContent(node, style, inner);
  }
  flow_.gap(pixelsOf(style.margin[kBottom]));
  flow_.block(outer, place.left, place.right);
}

void PageWriter::blockContent(const Node& node, const PageStyle& style, const PagePlace& place) {
  flow_.gap(style.padding[kTop]);
  PagePlace inner = place;
  inner.left += thickness(style, kLeft);
  inner.right += thickness(style, kRight);
  flow_.block(style, inner.left, inner.right);
  if (node.tag == Tag::li) mark(node, style, inner);
  content(node, style, inner);
  flow_.endLine();
  flow_.gap(style.padding[kBottom]);
}

void PageWriter::box(const Node& node, const PageStyle& style, const PagePlace& place) {
  const bool isNarrower = style.width.isPixels() && style.width.value > 0;
  beginTable(style, place.left, isNarrower ? style.width : Length{Length::Unit::percent, 100}, 0);
  html_ += QLatin1String("<tr>");
  beginCell(style, {}, place);
  PagePlace inner = place;
  ++inner.cells;
  inner.left = 0;
  inner.right = 0;
  ++inner.boxes;
  if (node.tag == Tag::li) mark(node, style, inner);
  content(node, style, inner);
  flow_.endLine();
  html_ += QLatin1String("</td></tr></table>");
}

void PageWriter::mark(const Node& item, const PageStyle& style, const PagePlace& place) {
  const QString value = item.attribute(QLatin1String("value"));
  if (place.number != nullptr) *place.number = value.isEmpty() ? *place.number + 1 : itemNumber(value);
  if (style.mark == ListMark::none) return;
  const QString number = listNumber(style.mark, place.number == nullptr ? 1 : *place.number);
  number.isEmpty() ? flow_.bullet(style.mark) : flow_.number(number);
}

// A picture that may not be loaded is told of in words.
void PageWriter::picture(const Node& node, const PageStyle& style, const PagePlace& place) {
  const QString address = pictureAddress(node.attribute(QLatin1String("src")));
  if (address.isEmpty() || ++pictures_ > kMostPictures) {
    return flow_.text(node.attribute(QLatin1String("alt")), style.text, style.whiteSpace, place.link);
  }
  const QString width = style.width.isPixels() ? widthText(style.width, zoom_) : QString();
  const QString height = style.height > 0 ? QString::number(std::max(1, zoomed(style.height, zoom_))) : QString();
  flow_.inlineMarkup(QLatin1String("<img") + attribute("src", escaped(address)) + attribute("width", width) +
                         attribute("height", height) + QLatin1String(" />"),
                     style.text);
}

void PageWriter::rule(const PageStyle& style, const PageStyle& outer, const PagePlace& place) {
  flow_.gap(kRuleGap);
  PageStyle line = style;
  line.text.pixels = 1;
  line.border = {};
  line.border[kTop] = {1, LineStyle::solid, kRuleColor};
  const Length whole{Length::Unit::percent, 100};
  beginTable(line, place.left, style.width.value > 0 ? style.width : whole, 0);
  html_ += QLatin1String("<tr>");
  beginCell(line, {}, place);
  html_ += QLatin1String("</td></tr></table>");
  flow_.gap(kRuleGap);
  flow_.block(outer, place.left, place.right);
}

// Frames are not shown together: each is a link to its page.
void PageWriter::frame(const Node& node, const PageStyle& style, const PageStyle& outer, const PagePlace& place) {
  const QString link = linkAddress(node.attribute(QLatin1String("src")));
  if (link.isEmpty()) return;
  const QString name = node.attribute(QLatin1String("name"));
  flow_.block(style, place.left, place.right);
  TextStyle text = style.text;
  text.isUnderlined = true;
  flow_.text(name.isEmpty() ? link : name, text, style.whiteSpace, link);
  flow_.block(outer, place.left, place.right);
}

void PageWriter::table(const Node& node, const PageStyle& style, const PageStyle& outer, const PagePlace& place) {
  TableGrid grid = gridOf(node, style, styles_, placesLeft_);
  isCut_ = isCut_ || grid.isCut;
  flow_.endLine();
  flow_.gap(pixelsOf(style.margin[kTop]));
  PagePlace inner = place;
  inner.left += pixelsOf(style.margin[kLeft]);
  for (const Node* caption : grid.captions) element(*caption, style, inner);
  if (!grid.rows.empty()) {
    shareBorders(grid, style);
    beginTable(style, inner.left, style.width, style.collapsesBorders ? 0 : style.borderSpacing);
    rows(grid, place);
    html_ += QLatin1String("</table>");
  }
  flow_.gap(pixelsOf(style.margin[kBottom]));
  flow_.block(outer, place.left, place.right);
}

void PageWriter::rows(const TableGrid& grid, const PagePlace& place) {
  std::vector<bool> isWidthSaid(grid.columns, false);
  bool inHeading = false;
  for (const GridRow& row : grid.rows) {
    if (row.isHeading != inHeading) html_ += row.isHeading ? QLatin1String("<thead>") : QLatin1String("</thead>");
    inHeading = row.isHeading;
    html_ += QLatin1String("<tr>");
    for (const GridCell& each : row.cells) {
      const bool saysWidth = each.columns == 1 && !isWidthSaid[each.column];
      if (each.columns == 1) isWidthSaid[each.column] = true;
      cell(each, saysWidth ? grid.widths[each.column] : Length(), saysWidth ? grid.least[each.column] : 0, place);
    }
    html_ += QLatin1String("</tr>");
  }
  if (inHeading) html_ += QLatin1String("</thead>");
}

void PageWriter::cell(const GridCell& cell, const Length& width, double least, const PagePlace& place) {
  const auto spanned = [](std::size_t count) { return count == 1 ? QString() : QString::number(count); };
  const QString attributes = attribute("rowspan", spanned(cell.rows)) + attribute("colspan", spanned(cell.columns)) +
                             attribute("width", widthText(width, zoom_));
  PageStyle style = cell.style;
  if (style.border[kLeft].isSeen() || style.border[kRight].isSeen()) {
    // A line that a neighbour draws is as near as the cell's own.
    for (const Side side : {kLeft, kRight}) style.padding[side] = std::max(style.padding[side], kLeastPadding);
  }
  beginCell(style, attributes, place);
  PagePlace inner;
  inner.link = place.link;
  inner.boxes = place.boxes;
  inner.cells = place.cells + 1;
  const double inside = least - thickness(style, kLeft) - thickness(style, kRight);
  const bool isAbove = style.vertical == VerticalAlign::bottom || style.vertical == VerticalAlign::middle;
  if (isAbove) strut(inside);
  content(*cell.node, style, inner);
  flow_.endLine();
  if (!isAbove) strut(inside);
  html_ += QLatin1String("</td>");
}

// The toolkit knows no least widths: an empty paragraph that begins so far in keeps the column open. It stands where it
// leaves the text in line with that of the cells beside.
void PageWriter::strut(double pixels) {
  if (pixels <= 0) return;
  static_cast<void>(flow_.takeGap());
  html_ += QStringLiteral("<p style=\"margin:0px 0px 0px %1px;font-size:1px\">&nbsp;</p>").arg(zoomed(pixels, zoom_));
}

void PageWriter::beginTable(const PageStyle& style, double left, const Length& width, double spacing) {
  constexpr auto kAutomatic = Length::Unit::automatic;
  QString align;
  if (style.margin[kLeft].unit == kAutomatic) {
    align = style.margin[kRight].unit == kAutomatic ? QStringLiteral("center") : QStringLiteral("right");
  }
  const QString margin =
      QStringLiteral("margin:%1px 0px 0px %2px").arg(flow_.takeGap()).arg(align.isEmpty() ? zoomed(left, zoom_) : 0);
  html_ += QLatin1String("<table") + attribute("align", align) + attribute("width", widthText(width, zoom_)) +
           attribute("cellspacing", QString::number(zoomed(spacing, zoom_))) +
           attribute("cellpadding", QStringLiteral("0")) + attribute("style", margin) + u'>';
}

void PageWriter::beginCell(const PageStyle& style, const QString& attributes, const PagePlace& place) {
  const Around around = place.cells > 0 ? Around::styles : Around::nothing;
  html_ += QLatin1String("<td") + attributes + classes_.cellAttributes(style, around) + u'>';
  flow_.beginCell(style);
}

}  // namespace desktop::pages

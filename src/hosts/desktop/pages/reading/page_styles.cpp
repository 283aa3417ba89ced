#include "hosts/desktop/pages/reading/page_styles.h"

#include <algorithm>
#include <array>

#include "hosts/desktop/pages/reading/style_properties.h"
#include "hosts/desktop/pages/reading/style_values.h"

namespace desktop::pages {
namespace {

// Pages that ask for more are shown without the rest of it.
constexpr int kMostDeclarations = 4'000'000;

constexpr auto kOwnSheet = R"(
h1 { margin: 0.67em 0; font-size: 1.7em; font-weight: bold; }
h2 { margin: 0.83em 0; font-size: 1.4em; font-weight: bold; }
h3 { margin: 1em 0; font-size: 1.17em; font-weight: bold; }
h4 { margin: 1.33em 0; font-weight: bold; }
h5 { margin: 1.67em 0; font-size: 0.85em; font-weight: bold; }
h6 { margin: 2.33em 0; font-size: 0.7em; font-weight: bold; }
body { margin: 14px 16px; }
p, dl { margin: 1em 0; }
ul, ol { margin: 1em 0; padding-left: 28px; }
ol { list-style: decimal; }
ul ul, ol ul { margin: 0; list-style: circle; }
ul ul ul { list-style: square; }
ul ol, ol ol { margin: 0; }
dd { margin-left: 28px; }
blockquote { margin: 1em 28px; }
address, em, i { font-style: italic; }
b, strong { font-weight: bold; }
u, ins { text-decoration: underline; }
s, del { text-decoration: line-through; }
pre { margin: 1em 0; white-space: pre; }
pre, code, tt { font-family: monospace; }
nobr { white-space: nowrap; }
small { font-size: smaller; }
big { font-size: larger; }
sub { vertical-align: sub; }
sup { vertical-align: super; }
hr { margin-left: auto; margin-right: auto; }
center { text-align: center; }
caption { padding: 2px 0; text-align: center; }
td, th { padding: 1px; }
th { font-weight: bold; text-align: center; }
)";

constexpr auto kLinkColor = "#1d5fa8";
constexpr auto kOldBorderColor = "#9a9a9a";  // of `<table border>`

// An attribute that is a declaration by another name.
struct AttributeProperty {
  QLatin1String attribute;
  QLatin1String property;
};
constexpr std::array kSizes{
    AttributeProperty{QLatin1String("width"), QLatin1String("width")},
    AttributeProperty{QLatin1String("height"), QLatin1String("height")},
    AttributeProperty{QLatin1String("cellspacing"), QLatin1String("border-spacing")},
};
constexpr std::array kColors{
    AttributeProperty{QLatin1String("bgcolor"), QLatin1String("background-color")},
    AttributeProperty{QLatin1String("color"), QLatin1String("color")},
    AttributeProperty{QLatin1String("text"), QLatin1String("color")},
};
constexpr std::array kWords{
    AttributeProperty{QLatin1String("valign"), QLatin1String("vertical-align")},
    AttributeProperty{QLatin1String("face"), QLatin1String("font-family")},
};

// What the `type` of a list says; only the case tells some of them apart.
struct MarkName {
  const char* type;
  const char* mark;
};
constexpr std::array kMarks{
    MarkName{"1", "decimal"},     MarkName{"a", "lower-alpha"}, MarkName{"A", "upper-alpha"},
    MarkName{"i", "lower-roman"}, MarkName{"I", "upper-roman"}, MarkName{"disc", "disc"},
    MarkName{"circle", "circle"}, MarkName{"square", "square"},
};

bool isList(Tag tag) { return tag == Tag::ul || tag == Tag::ol || tag == Tag::li; }

const Node* tableOf(const Node& cell) {
  const Node* node = cell.parent;
  while (node != nullptr && node->tag != Tag::table) node = node->parent;
  return node;
}

// Collects what the attributes of one element say.
class Reading {
 public:
  explicit Reading(const Node& node) : node_(node) {}

  Declarations declarations() {
    if (node_.attributes.empty() && !isCell(node_.tag)) return {};
    if (isCell(node_.tag)) takeTable();
    takeSizesAndColors();
    takeWords();
    takeAlign();
    if (node_.tag == Tag::a && node_.has(QLatin1String("href"))) {
      say("color", QLatin1String(kLinkColor));
      say("text-decoration", QStringLiteral("underline"));
    }
    return std::move(declarations_);
  }

 private:
  void say(const char* property, const QString& value) {
    declarations_.push_back({QLatin1String(property), value, false});
  }
  void say(QLatin1String property, const QString& value) { declarations_.push_back({property, value, false}); }

  static QString shown(const Length& length) {
    return QString::number(length.value) + (length.isPixels() ? QLatin1String("px") : QLatin1String("%"));
  }

  void takeTable() {
    const Node* table = tableOf(node_);
    if (table == nullptr) return;
    if (const auto padding = attributeLength(table->attribute(QLatin1String("cellpadding")))) {
      say("padding", shown(*padding));
    }
    const QString border = table->attribute(QLatin1String("border"));
    const auto width = attributeLength(border);
    const bool hasBorder = !border.isNull() && (!width || width->value > 0);
    if (hasBorder) say("border", QStringLiteral("1px solid ") + QLatin1String(kOldBorderColor));
  }

  void takeSizesAndColors() {
    for (const AttributeProperty& each : kSizes) {
      if (const auto length = attributeLength(node_.attribute(each.attribute))) say(each.property, shown(*length));
    }
    for (const AttributeProperty& each : kColors) {
      const auto color = attributeColor(node_.attribute(each.attribute));
      if (color && color->isValid()) say(each.property, color->name());
    }
    if (node_.tag != Tag::font) return;
    if (const auto pixels = numberedFontPixels(node_.attribute(QLatin1String("size")))) {
      say("font-size", QString::number(*pixels) + QLatin1String("px"));
    }
  }

  void takeWords() {
    for (const AttributeProperty& each : kWords) {
      const QString value = node_.attribute(each.attribute);
      if (!value.isEmpty()) say(each.property, value);
    }
    if (node_.has(QLatin1String("nowrap"))) say("white-space", QStringLiteral("nowrap"));
    if (!isList(node_.tag)) return;
    const QString type = node_.attribute(QLatin1String("type"));
    for (const MarkName& each : kMarks) {
      if (type == QLatin1String(each.type)) say("list-style", QLatin1String(each.mark));
    }
  }

  // A table's own place is meant, not that of what it holds.
  void takeAlign() {
    const QString align = node_.attribute(QLatin1String("align")).toLower();
    if (align.isEmpty() || node_.tag == Tag::img) return;
    if (node_.tag != Tag::table && node_.tag != Tag::hr) return say("text-align", align);
    if (align != QLatin1String("left")) say("margin-left", QStringLiteral("auto"));
    if (align == QLatin1String("center")) say("margin-right", QStringLiteral("auto"));
  }

  const Node& node_;
  Declarations declarations_;
};

// What the element begins with, before anything is said of it.
PageStyle beginningOf(Tag tag, const PageStyle& outer) {
  PageStyle style = outer.handedOn();
  if (tag == Tag::table) {
    // As older browsers have it: what a page says of its text does not reach into tables.
    style.align = Align::left;
    style.whiteSpace = WhiteSpace::normal;
    style.textIndent = 0;
    style.text.script = VerticalAlign::baseline;
    style.vertical = VerticalAlign::middle;
    style.collapsesBorders = false;
    style.borderSpacing = PageStyle().borderSpacing;
  } else if (!isTablePart(tag)) {
    style.vertical = VerticalAlign::baseline;
  }
  return style;
}

// Whether all that styles can ask of the two elements is the same: what they are and what they stand in.
bool areAlike(const Node* one, const Node* other) {
  while (one != other) {
    if (one == nullptr || other == nullptr || one->tag != other->tag || one->attributes != other->attributes) {
      return false;
    }
    one = one->parent;
    other = other->parent;
  }
  return true;
}

// What elements look like where the page says nothing.
const StyleSheet& ownSheet() {
  static const StyleSheet sheet = [] {
    StyleSheet own;
    own.add(QString::fromLatin1(kOwnSheet));
    return own;
  }();
  return sheet;
}

}  // namespace

Declarations attributeDeclarations(const Node& node) { return Reading(node).declarations(); }

PageStyles::PageStyles() : declarationsLeft_(kMostDeclarations) {}

PageStyle PageStyles::styleOf(const Node& node, const PageStyle& outer) {
  constexpr std::size_t kMostKnown = 12;
  if (!isCell(node.tag) && node.tag != Tag::tr) return readStyle(node, outer);
  const auto isSame = [&](const Known& each) { return areAlike(each.node, &node) && each.outer == outer; };
  const auto found = std::ranges::find_if(known_, isSame);
  if (found != known_.end()) return found->style;
  if (known_.size() < kMostKnown) known_.emplace_back();
  Known& replaced = known_[oldest_];
  oldest_ = (oldest_ + 1) % kMostKnown;
  replaced = {&node, outer, readStyle(node, outer)};
  return replaced.style;
}

PageStyle PageStyles::readStyle(const Node& node, const PageStyle& outer) {
  PageStyle style = beginningOf(node.tag, outer);
  std::vector<const Declarations*> all = ownSheet().declarationsFor(node);
  const Declarations attributes = attributeDeclarations(node);
  all.push_back(&attributes);
  if (declarationsLeft_ > 0) {
    const auto rules = sheet_.declarationsFor(node);
    all.insert(all.end(), rules.begin(), rules.end());
  }
  const Declarations own = declarationsFrom(node.attribute(QLatin1String("style")));
  all.push_back(&own);
  for (const Declarations* each : all) declarationsLeft_ -= static_cast<int>(each->size());
  apply(all, outer, style);
  return style;
}

}  // namespace desktop::pages

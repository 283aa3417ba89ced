#include "hosts/desktop/pages/reading/page_tree.h"

#include <algorithm>
#include <utility>

#include "hosts/desktop/pages/reading/shortened.h"

namespace desktop::pages {
namespace {

constexpr qsizetype kMostSheets = 8;

// An element whose end has not been read.
struct Open {
  Node* node = nullptr;
  Tag tag = Tag::other;  // what the page calls it; a node may stand for it as something simpler
};

bool isBoundary(Tag tag) { return isCell(tag) || tag == Tag::caption || tag == Tag::table; }

bool isTableFrame(Tag tag) { return tag == Tag::table || tag == Tag::tr || tag == Tag::colgroup || isSection(tag); }

bool isList(Tag tag) { return tag == Tag::ul || tag == Tag::ol; }

bool isDefinition(Tag tag) { return tag == Tag::dd || tag == Tag::dt; }

class TreeBuilder {
 public:
  explicit TreeBuilder(const TreeLimits& limits) : limits_(limits) {
    tree_.html = std::make_unique<Node>();
    tree_.html->tag = Tag::html;
    open_.push_back({tree_.html.get(), Tag::html});
    push(Tag::body, Tag::body, {});
  }

  PageTree build(QStringView html) {
    HtmlReader reader(html);
    while (!tree_.isCut) {
      auto token = reader.next();
      if (!token) break;
      take(*std::move(token));
    }
    return std::move(tree_);
  }

 private:
  void take(HtmlToken token) {
    switch (token.kind) {
      case HtmlToken::Kind::start:
        return start(tagNamed(token.name), std::move(token.attributes));
      case HtmlToken::Kind::end:
        return end(tagNamed(token.name));
      case HtmlToken::Kind::text:
        return text(std::move(token.text));
    }
  }

  void start(Tag tag, std::vector<Attribute> attributes) {
    switch (tag) {
      case Tag::other:
        return;
      case Tag::html:
      case Tag::body:
        return adopt(tag == Tag::html ? *tree_.html : *tree_.html->children.front(), std::move(attributes));
      case Tag::title:
      case Tag::style:
        taken_ = tag;
        return;
      case Tag::link:
        return takeSheet(attributes);
      default:
        break;
    }
    if (isTablePart(tag)) return startTablePart(tag, std::move(attributes));
    closeBefore(tag);
    if (tag != Tag::table) return push(tag, tag, std::move(attributes));
    push(tag, mayNest() ? tag : Tag::section, std::move(attributes));
  }

  // Whether a table may stand here as a table.
  bool mayNest() {
    const auto around = std::ranges::count(open_, Tag::table, [](const Open& each) { return each.node->tag; });
    if (around == 0) return true;
    return around < limits_.tables && nestedTables_++ < limits_.nestedTables;
  }

  static void adopt(Node& node, std::vector<Attribute> attributes) {
    for (Attribute& each : attributes) {
      const auto isSame = [&](const Attribute& other) { return other.name == each.name; };
      if (std::ranges::none_of(node.attributes, isSame)) node.attributes.push_back(std::move(each));
    }
  }

  void takeSheet(const std::vector<Attribute>& attributes) {
    Node link;
    link.attributes = attributes;
    if (link.attribute(QLatin1String("rel")).compare(QLatin1String("stylesheet"), Qt::CaseInsensitive) != 0) return;
    const QString media = link.attribute(QLatin1String("media")).toLower();
    if (!media.isEmpty() && !media.contains(QLatin1String("screen")) && !media.contains(QLatin1String("all"))) return;
    if (tree_.sheets.size() < kMostSheets) tree_.sheets.append(link.attribute(QLatin1String("href")));
  }

  // Ends what a tag ends without saying so.
  void closeBefore(Tag tag) {
    if (isBlock(tag) || tag == Tag::table) closeIn(Tag::p);
    if (tag == Tag::a) closeIn(Tag::a);
    if (tag == Tag::li) closeItem([](Tag other) { return other == Tag::li; }, isList);
    if (isDefinition(tag)) closeItem(isDefinition, [](Tag other) { return other == Tag::dl; });
  }

  // Ends the element, if it is open in this cell.
  void closeIn(Tag tag) {
    for (std::size_t i = open_.size(); i-- > kKept;) {
      if (open_[i].tag == tag) return close(i);
      if (isBoundary(open_[i].tag)) return;
    }
  }

  template <class IsItem, class IsList>
  void closeItem(IsItem isItem, IsList isListTag) {
    for (std::size_t i = open_.size(); i-- > kKept;) {
      if (isItem(open_[i].tag)) return close(i);
      if (isListTag(open_[i].tag) || isBoundary(open_[i].tag)) return;
    }
  }

  // The innermost open table, or 0.
  [[nodiscard]] std::size_t openTable() const {
    for (std::size_t i = open_.size(); i-- > kKept;) {
      if (open_[i].tag == Tag::table) return i;
    }
    return 0;
  }

  void startTablePart(Tag tag, std::vector<Attribute> attributes) {
    const std::size_t table = openTable();
    if (table == 0 || open_[table].node->tag != Tag::table) {
      if (table != 0) close(table + 1);
      if (isCell(tag) || tag == Tag::caption) push(tag, Tag::section, std::move(attributes));
      return;
    }
    // What the part stands in: the innermost open element from the table on that may hold it.
    std::size_t holder = table;
    for (std::size_t i = table + 1; i < open_.size() && mayHold(open_[i].tag, tag); ++i) holder = i;
    close(holder + 1);
    if (isCell(tag)) {
      if (open_.back().tag != Tag::tr) push(Tag::tr, Tag::tr, {});
      if (++cells_ > limits_.cells) tree_.isCut = true;
    }
    push(tag, tag, std::move(attributes));
  }

  static bool mayHold(Tag holder, Tag part) {
    if (isCell(part)) return isSection(holder) || holder == Tag::tr;
    if (part == Tag::tr) return isSection(holder);
    return part == Tag::col && holder == Tag::colgroup;
  }

  void end(Tag tag) {
    if (tag == Tag::br) return start(Tag::br, {});
    if (isVoid(tag) || tag == Tag::other || tag == Tag::html || tag == Tag::body) return;
    const bool ofTable = isTablePart(tag) || tag == Tag::table;
    for (std::size_t i = open_.size(); i-- > kKept;) {
      if (open_[i].tag == tag) return close(i);
      if (ofTable ? open_[i].tag == Tag::table : isBoundary(open_[i].tag)) return;
    }
  }

  void close(std::size_t from) {
    if (from < open_.size()) open_.resize(from);
  }

  void text(QString text) {
    if (taken_ != Tag::text) return takeText(std::exchange(taken_, Tag::text), text);
    const qsizetype room = limits_.characters - characters_;
    characters_ += text.size();
    if (text.size() > room) {
      tree_.isCut = true;
      text = shortened(text, room);
    }
    if (text.isEmpty()) return;
    if (isTableFrame(open_.back().node->tag) && text.trimmed().isEmpty()) return;
    auto node = std::make_unique<Node>();
    node->text = std::move(text);
    add(std::move(node));
  }

  void takeText(Tag of, const QString& text) {
    if (of == Tag::style) tree_.styles += text + u'\n';
    if (of == Tag::title && tree_.title.isEmpty()) tree_.title = text.simplified();
  }

  // Begins an element that the page calls `called`.
  void push(Tag called, Tag tag, std::vector<Attribute> attributes) {
    if (open_.size() >= limits_.depth && !isVoid(tag)) return;
    auto node = std::make_unique<Node>();
    node->tag = tag;
    node->attributes = std::move(attributes);
    Node* added = add(std::move(node));
    if (!isVoid(tag)) open_.push_back({added, called});
  }

  Node* add(std::unique_ptr<Node> node) {
    if (++nodes_ > limits_.nodes) tree_.isCut = true;
    Node* parent = open_.back().node;
    Node* added = node.get();
    if (isTableFrame(parent->tag) && !isTablePart(node->tag)) {
      while (parent->tag != Tag::table) parent = parent->parent;
      parent = parent->parent;
      node->parent = parent;
      parent->children.insert(parent->children.end() - 1, std::move(node));
    } else {
      node->parent = parent;
      parent->children.push_back(std::move(node));
    }
    return added;
  }

  static constexpr std::size_t kKept = 2;  // the page itself and its body stay open

  TreeLimits limits_;
  PageTree tree_;
  std::vector<Open> open_;
  Tag taken_ = Tag::text;  // the element whose text comes next and is no part of the tree
  std::size_t nodes_ = 0;
  std::size_t cells_ = 0;
  int nestedTables_ = 0;
  qsizetype characters_ = 0;
};

}  // namespace

QString Node::attribute(QLatin1String name) const {
  const auto found = std::ranges::find_if(attributes, [&](const Attribute& each) { return each.name == name; });
  if (found == attributes.end()) return {};
  return found->value.isNull() ? QStringLiteral("") : found->value;
}

bool Node::has(QLatin1String name) const { return !attribute(name).isNull(); }

PageTree treeOf(QStringView html, const TreeLimits& limits) { return TreeBuilder(limits).build(html); }

}  // namespace desktop::pages

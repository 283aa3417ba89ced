#include "hosts/desktop/pages/reading/style_sheet.h"

#include <algorithm>

namespace desktop::pages {
namespace {

constexpr qsizetype kLongestSheet = 1'000'000;  // characters
constexpr std::size_t kMostRules = 3000;
constexpr std::size_t kMostDeclarations = 64;  // of a rule
constexpr std::size_t kMostParts = 8;          // of a selector
constexpr int kMostTries = 400;                // elements looked at for one selector
constexpr int kDeepest = 4;                    // blocks in blocks

// A selector's weight: identifiers before classes before elements.
constexpr int kIdWeight = 10000;
constexpr int kClassWeight = 100;

QString withoutComments(QStringView css) {
  QString text = css.first(qMin(css.size(), kLongestSheet)).toString();
  text.replace(QLatin1String("<!--"), QLatin1String(" "));
  text.replace(QLatin1String("-->"), QLatin1String(" "));
  QString result;
  qsizetype done = 0;
  for (qsizetype open = text.indexOf(QLatin1String("/*")); open >= 0; open = text.indexOf(QLatin1String("/*"), done)) {
    result += QStringView(text).sliced(done, open - done);
    result += u' ';
    const qsizetype close = text.indexOf(QLatin1String("*/"), open + 2);
    done = close < 0 ? text.size() : close + 2;
  }
  result += QStringView(text).sliced(done);
  return result;
}

// The first of `marks` from `at` on that is not in quotes or behind a backslash; the end where there is none.
qsizetype findMark(QStringView text, qsizetype at, QLatin1String marks) {
  QChar quote;
  for (; at < text.size(); ++at) {
    const QChar c = text[at];
    if (c == u'\\') {
      ++at;
    } else if (!quote.isNull()) {
      if (c == quote || c == u'\n') quote = QChar();
    } else if (c == u'"' || c == u'\'') {
      quote = c;
    } else if (marks.contains(c)) {
      return at;
    }
  }
  return text.size();
}

// Where the block ends that begins before `at`.
qsizetype blockEnd(QStringView css, qsizetype at) {
  int depth = 1;
  while ((at = findMark(css, at, QLatin1String("{}"))) < css.size()) {
    depth += css[at] == u'{' ? 1 : -1;
    if (depth == 0) return at;
    ++at;
  }
  return css.size();
}

bool isForScreens(QStringView media) {
  const QString list = media.toString().toLower();
  return list.contains(QLatin1String("screen")) || list.contains(QLatin1String("all")) || list.trimmed().isEmpty();
}

bool isNameCharacter(QChar c) { return c.isLetterOrNumber() || c == u'-' || c == u'_' || c.unicode() > 0x7F; }

bool isNamedIn(QStringView classes, QStringView name) {
  qsizetype at = 0;
  while ((at = classes.indexOf(name, at, Qt::CaseInsensitive)) >= 0) {
    const qsizetype end = at + name.size();
    const bool begins = at == 0 || classes[at - 1].isSpace();
    if (begins && (end == classes.size() || classes[end].isSpace())) return true;
    at = end;
  }
  return false;
}

// What a selector says of a link that has been followed or not holds for every link.
bool isOfEveryLink(QStringView name) { return name == QLatin1String("link") || name == QLatin1String("visited"); }

}  // namespace

Declarations declarationsFrom(QStringView text) {
  Declarations declarations;
  for (qsizetype at = 0; at < text.size() && declarations.size() < kMostDeclarations;) {
    const qsizetype end = findMark(text, at, QLatin1String(";"));
    const QStringView all = text.sliced(at, end - at);
    at = end + 1;
    const qsizetype colon = all.indexOf(u':');
    if (colon < 0) continue;
    Declaration declaration;
    declaration.property = all.first(colon).trimmed().toString().toLower();
    if (declaration.property.startsWith(QLatin1String("mso-"))) continue;
    QStringView value = all.sliced(colon + 1).trimmed();
    const qsizetype mark = value.lastIndexOf(u'!');
    if (mark >= 0 && value.sliced(mark + 1).trimmed().compare(QLatin1String("important"), Qt::CaseInsensitive) == 0) {
      declaration.isImportant = true;
      value = value.first(mark).trimmed();
    }
    declaration.value = value.toString();
    declarations.push_back(std::move(declaration));
  }
  return declarations;
}

void StyleSheet::add(QStringView css) { addRules(withoutComments(css), 0); }

void StyleSheet::addRules(QStringView css, int depth) {
  for (qsizetype at = 0; at < css.size();) {
    const qsizetype mark = findMark(css, at, QLatin1String("{};"));
    if (mark == css.size()) return;
    const QStringView head = css.sliced(at, mark - at).trimmed();
    at = mark + 1;
    if (css[mark] != u'{') continue;
    const qsizetype end = blockEnd(css, at);
    const QStringView block = css.sliced(at, end - at);
    at = end + 1;
    constexpr QLatin1String kMedia("@media");
    if (head.startsWith(kMedia, Qt::CaseInsensitive)) {
      if (depth < kDeepest && isForScreens(head.sliced(kMedia.size()))) addRules(block, depth + 1);
    } else if (!head.startsWith(u'@')) {
      addRule(head, block);
    }
  }
}

void StyleSheet::addRule(QStringView selectors, QStringView block) {
  Declarations declarations = declarationsFrom(block);
  if (declarations.empty()) return;
  blocks_.push_back(std::move(declarations));
  for (const QStringView selector : selectors.split(u',')) {
    if (rules_.size() >= kMostRules) return;
    Rule rule;
    if (!readSelector(selector.trimmed(), rule)) continue;
    rule.block = blocks_.size() - 1;
    byKey_[keyOf(rule.parts.back())].push_back(rules_.size());
    rules_.push_back(std::move(rule));
  }
}

bool StyleSheet::readSelector(QStringView text, Rule& rule) {
  bool isDirectly = false;
  while (!text.isEmpty()) {
    if (text[0].isSpace() || text[0] == u'>') {
      isDirectly = isDirectly || text[0] == u'>';
      text = text.sliced(1);
      continue;
    }
    const auto ends = [](QChar c) { return c.isSpace() || c == u'>'; };
    const qsizetype end = std::ranges::find_if(text, ends) - text.begin();
    Part part;
    part.isDirectly = isDirectly;
    if (rule.parts.size() == kMostParts || !readPart(text.first(end), part)) return false;
    rule.weight += (part.tag == Tag::other ? 0 : 1) + (part.id.isEmpty() ? 0 : kIdWeight) +
                   kClassWeight * static_cast<int>(part.classes.size());
    rule.parts.push_back(std::move(part));
    isDirectly = false;
    text = text.sliced(end);
  }
  return !rule.parts.empty() && !isDirectly;
}

// "td", "td.xl24", ".a.b", "#id", "a:link", "*". False for what cannot hold here.
bool StyleSheet::readPart(QStringView text, Part& part) {
  QChar kind;
  while (!text.isEmpty()) {
    const qsizetype end = std::ranges::find_if_not(text, isNameCharacter) - text.begin();
    const QString name = text.first(end).toString();
    if (!kind.isNull() && name.isEmpty()) return false;
    if (kind.isNull() && !name.isEmpty()) {
      part.tag = tagNamed(name.toLower());
      if (part.tag == Tag::other || part.tag == Tag::leftOut) return false;
    } else if (kind == u'.') {
      part.classes.append(name.toLower());
    } else if (kind == u'#') {
      part.id = name;
    } else if (kind == u':' && !isOfEveryLink(name.toLower())) {
      return false;
    }
    text = text.sliced(end);
    if (text.startsWith(u'*') && kind.isNull() && name.isEmpty()) text = text.sliced(1);
    if (text.isEmpty()) break;
    kind = text[0];
    if (kind != u'.' && kind != u'#' && kind != u':') return false;
    text = text.sliced(1);
    if (text.isEmpty()) return false;
  }
  return true;
}

QString StyleSheet::keyOf(const Part& part) {
  if (!part.id.isEmpty()) return u'#' + part.id;
  if (!part.classes.isEmpty()) return u'.' + part.classes.first();
  return QString::number(static_cast<int>(part.tag));
}

std::vector<const Declarations*> StyleSheet::declarationsFor(const Node& node) const {
  std::vector<std::size_t> found;
  const auto look = [&](const QString& key) {
    const auto rules = byKey_.find(key);
    if (rules == byKey_.end()) return;
    for (const std::size_t rule : *rules) {
      if (holds(rules_[rule], node)) found.push_back(rule);
    }
  };
  look(QString::number(static_cast<int>(Tag::other)));
  look(QString::number(static_cast<int>(node.tag)));
  const QString id = node.attribute(QLatin1String("id"));
  if (!id.isEmpty()) look(u'#' + id);
  const QStringList classes = node.attribute(QLatin1String("class")).toLower().simplified().split(u' ');
  for (qsizetype i = 0; i < classes.size() && i < static_cast<qsizetype>(kMostParts); ++i) {
    if (!classes[i].isEmpty() && classes.indexOf(classes[i]) == i) look(u'.' + classes[i]);
  }
  std::ranges::sort(found, {}, [this](std::size_t rule) { return std::pair(rules_[rule].weight, rule); });
  std::vector<const Declarations*> declarations;
  for (const std::size_t rule : found) declarations.push_back(&blocks_[rules_[rule].block]);
  return declarations;
}

bool StyleSheet::holds(const Part& part, const Node& node) {
  if (part.tag != Tag::other && part.tag != node.tag) return false;
  if (!part.id.isEmpty() && node.attribute(QLatin1String("id")) != part.id) return false;
  if (part.classes.isEmpty()) return true;
  const QString classes = node.attribute(QLatin1String("class"));
  return std::ranges::all_of(part.classes, [&](const QString& each) { return isNamedIn(classes, each); });
}

bool StyleSheet::holds(const Rule& rule, const Node& node) {
  int tries = kMostTries;
  return holds(rule.parts.back(), node) && holdsAbove(rule.parts, rule.parts.size() - 1, node.parent, tries);
}

// Whether the parts before `last` hold for `node` and what is around it.
bool StyleSheet::holdsAbove(const std::vector<Part>& parts, std::size_t last, const Node* node, int& tries) {
  if (last == 0) return true;
  const bool isDirectly = parts[last].isDirectly;
  for (; node != nullptr && tries > 0; node = node->parent) {
    --tries;
    if (holds(parts[last - 1], *node) && holdsAbove(parts, last - 1, node->parent, tries)) return true;
    if (isDirectly) return false;
  }
  return false;
}

}  // namespace desktop::pages

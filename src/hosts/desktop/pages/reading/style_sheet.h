#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "hosts/desktop/pages/reading/page_tree.h"

namespace desktop::pages {

// "color: red": the property in lower case, the value as it stands without "!important".
struct Declaration {
  QString property;
  QString value;
  bool isImportant = false;
};

using Declarations = std::vector<Declaration>;

// The declarations of a style attribute or of a rule. Those of one office program alone ("mso-...") are left out, and
// so is what is no declaration.
[[nodiscard]] Declarations declarationsFrom(QStringView text);

// The rules of a page's styles, as far as they say how the page looks on a screen: element, class and identifier
// selectors, in or directly in each other. Rules with other selectors are left out, as are comments and the comment
// marks that hide styles from old browsers.
class StyleSheet {
 public:
  void add(QStringView css);

  // The declarations of all rules that hold for the element, the weakest first. They stay where they are as long as
  // nothing is added.
  [[nodiscard]] std::vector<const Declarations*> declarationsFor(const Node& node) const;

  [[nodiscard]] std::size_t size() const { return rules_.size(); }

 private:
  // An element with what a selector says of it.
  struct Part {
    Tag tag = Tag::other;  // other: any
    QString id;
    QStringList classes;
    bool isDirectly = false;  // in the part before it
  };
  struct Rule {
    std::vector<Part> parts;  // outermost first
    int weight = 0;
    std::size_t block = 0;
  };

  void addRules(QStringView css, int depth);
  void addRule(QStringView selectors, QStringView block);
  [[nodiscard]] static bool readPart(QStringView text, Part& part);
  [[nodiscard]] static bool readSelector(QStringView text, Rule& rule);
  [[nodiscard]] static bool holds(const Part& part, const Node& node);
  [[nodiscard]] static bool holds(const Rule& rule, const Node& node);
  [[nodiscard]] static bool holdsAbove(const std::vector<Part>& parts, std::size_t last, const Node* node, int& tries);
  [[nodiscard]] static QString keyOf(const Part& part);

  std::vector<Rule> rules_;
  std::vector<Declarations> blocks_;
  QHash<QString, std::vector<std::size_t>> byKey_;  // of their last parts
};

}  // namespace desktop::pages

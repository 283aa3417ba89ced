#include "hosts/desktop/views/tree_text.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "atlas/queries/indicator_tree.h"
#include "hosts/desktop/views/indicator_tree.h"

namespace desktop {
namespace {

enum Column : std::size_t { kYear, kUnit, kSex, kType, kIndicator, kValue, kColumns };
using Row = std::array<QString, kColumns>;

QString textOf(const forms::Node& node) { return QString::fromStdString(node.text()); }

bool hasFigure(const forms::Node& node) {
  return node.children().empty() && !splitIndicator(textOf(node)).figure.isEmpty();
}

bool isYear(const forms::Node& node) {
  const QString text = textOf(node);
  const bool digits = std::ranges::all_of(text, [](QChar c) { return c.isDigit(); });
  return node.parent() == nullptr && node.children().empty() && !text.isEmpty() && digits;
}

// A second line about the unit, followed by its figures, as the thematic maps give it.
bool isLineBeforeFigures(const forms::Node& node) {
  const forms::Node* parent = node.parent();
  if (parent == nullptr || parent->parent() != nullptr || !node.children().empty() || hasFigure(node)) return false;
  const auto& siblings = parent->children();
  const auto own = std::ranges::find(siblings, &node, [](const auto& sibling) { return sibling.get(); });
  return std::any_of(own, siblings.end(), [](const auto& sibling) { return hasFigure(*sibling); });
}

Column columnOf(const forms::Node& node) {
  if (node.parent() == nullptr) return isYear(node) ? kYear : kUnit;
  if (node.style().color == atlas::kSexNode || isLineBeforeFigures(node)) return kSex;
  return node.children().empty() ? kIndicator : kType;
}

// A cell that would part its line, or that begins like a quoted one, is told as a spreadsheet tells it.
QString cell(QString text) {
  for (const QLatin1Char c : {QLatin1Char('\t'), QLatin1Char('\n'), QLatin1Char('\r')})
    text.replace(c, QLatin1Char(' '));
  if (!text.startsWith(QLatin1Char('"'))) return text;
  return QLatin1Char('"') + text.replace(QStringLiteral("\""), QStringLiteral("\"\"")) + QLatin1Char('"');
}

// Collects the rows of a branch, or of all when there is none.
class Rows {
 public:
  explicit Rows(const forms::Node* branch) : branch_(branch) {}

  void addSiblings(const std::vector<std::unique_ptr<forms::Node>>& siblings, Row above, bool inside) {
    for (const auto& node : siblings) {
      if (isYear(*node) || isLineBeforeFigures(*node)) {
        above[columnOf(*node)] = textOf(*node);
        if (node.get() == branch_) add(above);
      } else {
        addNode(*node, above, inside || node.get() == branch_);
      }
    }
  }

  [[nodiscard]] CopiedText copied() const {
    if (rows_ == 0) return {};
    const QStringList heading{QStringLiteral("Año"),  QStringLiteral("Unidad"),    QStringLiteral("Sexo"),
                              QStringLiteral("Tipo"), QStringLiteral("Indicador"), QStringLiteral("Valor")};
    return {heading.join(QLatin1Char('\t')) + QLatin1Char('\n') + text_, rows_};
  }

 private:
  void addNode(const forms::Node& node, Row row, bool inside) {
    const Column column = columnOf(node);
    const IndicatorText parts = hasFigure(node) ? splitIndicator(textOf(node)) : IndicatorText{textOf(node), {}};
    row[column] = parts.text;
    row[kValue] = parts.figure;
    if (!node.children().empty()) return addSiblings(node.children(), row, inside);
    // A sex can be left without indicators of its own; that is no row.
    const bool tells = column == kIndicator || column == kUnit || &node == branch_;
    if (inside && tells) add(row);
  }

  void add(const Row& row) {
    QStringList cells;
    for (const QString& each : row) cells += cell(each);
    text_ += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    ++rows_;
  }

  const forms::Node* branch_;
  QString text_;
  int rows_ = 0;
};

}  // namespace

CopiedText treeText(const forms::TreeView& tree) {
  Rows rows(nullptr);
  rows.addSiblings(tree.roots(), {}, true);
  return rows.copied();
}

CopiedText branchText(const forms::TreeView& tree, const forms::Node& branch) {
  Rows rows(&branch);
  rows.addSiblings(tree.roots(), {}, false);
  return rows.copied();
}

}  // namespace desktop

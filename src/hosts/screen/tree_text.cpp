#include "hosts/screen/tree_text.h"

#include <algorithm>
#include <array>

#include "atlas/queries/indicator_tree.h"
#include "hosts/screen/indicator_text.h"

namespace screen {
namespace {

enum Column : std::size_t { kYear, kUnit, kSex, kType, kIndicator, kValue, kColumns };
using Row = std::array<std::string, kColumns>;

bool hasFigure(const forms::Node& node) {
  return node.children().empty() && !splitIndicator(node.text()).figure.empty();
}

bool isYear(const forms::Node& node) {
  const bool digits = std::ranges::all_of(node.text(), [](char c) { return c >= '0' && c <= '9'; });
  return node.parent() == nullptr && node.children().empty() && !node.text().empty() && digits;
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
std::string cell(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  return text.starts_with('"') ? forms::quoted(text) : text;
}

// Collects the rows of a branch, or of all when there is none.
class Rows {
 public:
  explicit Rows(const forms::Node* branch) : branch_(branch) {}

  void addSiblings(const std::vector<std::unique_ptr<forms::Node>>& siblings, Row above, bool inside) {
    for (const auto& node : siblings) {
      if (isYear(*node) || isLineBeforeFigures(*node)) {
        above[columnOf(*node)] = node->text();
        if (node.get() == branch_) add(above);
      } else {
        addNode(*node, above, inside || node.get() == branch_);
      }
    }
  }

  [[nodiscard]] CopiedText copied() const {
    if (rows_ == 0) return {};
    return {"Año\tUnidad\tSexo\tTipo\tIndicador\tValor\n" + text_, rows_};
  }

 private:
  void addNode(const forms::Node& node, Row row, bool inside) {
    const Column column = columnOf(node);
    const IndicatorText parts = hasFigure(node) ? splitIndicator(node.text()) : IndicatorText{node.text(), {}};
    row[column] = parts.text;
    row[kValue] = parts.figure;
    if (!node.children().empty()) return addSiblings(node.children(), row, inside);
    // A sex can be left without indicators of its own; that is no row.
    const bool tells = column == kIndicator || column == kUnit || &node == branch_;
    if (inside && tells) add(row);
  }

  void add(const Row& row) {
    for (const std::string& each : row) text_.append(cell(each)).append(1, &each == &row.back() ? '\n' : '\t');
    ++rows_;
  }

  const forms::Node* branch_;
  std::string text_;
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

}  // namespace screen

#include "hosts/desktop/pages/copied_text.h"

#include <QStringList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

namespace desktop::pages {
namespace {

// Positions of a document, the end not counted.
struct Range {
  int first = 0;
  int end = 0;
};

// Without what stands for pictures, broken words and blanks that keep together.
QString plain(QString text) {
  text.remove(QChar::ObjectReplacementCharacter);
  text.remove(QChar(0x200B));
  text.replace(QChar::Nbsp, u' ');
  return text;
}

QString textOf(const QTextBlock& block, Range range) {
  const int first = qMax(range.first - block.position(), 0);
  const int end = qMin(range.end - block.position(), block.length() - 1);
  return first < end ? plain(block.text().mid(first, end - first)) : QString();
}

class Copy {
 public:
  explicit Copy(Range range) : range_(range) {}

  void take(const QTextFrame::iterator& begin) {
    for (auto at = begin; !at.atEnd(); ++at) {
      if (QTextFrame* frame = at.currentFrame()) {
        takeFrame(*frame);
      } else {
        takeBlock(at.currentBlock());
      }
    }
  }

  void takeRows(const QTextTable& table, int row, int rows, int column, int columns) {
    for (int i = row; i < row + rows; ++i) {
      QStringList cells;
      for (int j = column; j < column + columns; ++j) {
        const QTextTableCell cell = table.cellAt(i, j);
        const bool begins = cell.row() == i && cell.column() == j;
        cells += begins ? lineOf(cell) : QString();
      }
      lines_ += cells.join(u'\t');
    }
  }

  [[nodiscard]] QString text() const { return lines_.join(u'\n'); }

 private:
  void takeBlock(const QTextBlock& block) {
    const QString text = textOf(block, range_);
    if (!text.isEmpty()) lines_ += QString(text).replace(QChar::LineSeparator, u'\n');
  }

  void takeFrame(QTextFrame& frame) {
    if (frame.lastPosition() < range_.first || frame.firstPosition() >= range_.end) return;
    auto* table = qobject_cast<QTextTable*>(&frame);
    if (table == nullptr) return take(frame.begin());
    const QTextTableCell first = table->cellAt(range_.first);
    const QTextTableCell last = table->cellAt(range_.end);
    if (first.isValid() && first == last) return take(first.begin());
    const bool isRule = table->rows() == 1 && table->columns() == 1 && lineOf(table->cellAt(0, 0)).isEmpty();
    if (!isRule) takeRows(*table, 0, table->rows(), 0, table->columns());
  }

  // All that a cell holds, in one line.
  static QString lineOf(const QTextTableCell& cell) {
    Copy inner({cell.firstPosition(), cell.lastPosition() + 1});
    inner.take(cell.begin());
    return inner.text().simplified();
  }

  Range range_;
  QStringList lines_;
};

}  // namespace

QString copiedText(const QTextCursor& selection) {
  Copy copy({selection.selectionStart(), selection.selectionEnd()});
  if (selection.hasComplexSelection()) {
    int row = 0;
    int rows = 0;
    int column = 0;
    int columns = 0;
    selection.selectedTableCells(&row, &rows, &column, &columns);
    if (const QTextTable* table = selection.currentTable()) copy.takeRows(*table, row, rows, column, columns);
  } else if (selection.hasSelection()) {
    copy.take(selection.document()->rootFrame()->begin());
  }
  return copy.text();
}

}  // namespace desktop::pages

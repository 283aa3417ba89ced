#include "hosts/desktop/views/pick_list.h"

#include <QKeyEvent>

namespace desktop {

PickList::PickList(QWidget& parent) : QListWidget(&parent) {
  setWordWrap(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { emit picked(row(item)); });
  ensurePolished();
  addItem(QStringLiteral("X"));
  rowHeight_ = qMax(1, sizeHintForRow(0));
  clear();
  border_ = 2 * frameWidth();
}

int PickList::rowsIn(int height) const { return (qMax(0, height - border_) + rowHeight_ - 1) / rowHeight_; }

int PickList::heightOfRows(int rows) const { return rows < 1 ? 0 : rows * rowHeight_ + border_; }

// A list that the keyboard has just come into marks its first row as current, chosen or not: the keys begin before it.
void PickList::keyPressEvent(QKeyEvent* event) {
  if (selectedItems().isEmpty()) setCurrentRow(-1);
  const int before = currentRow();
  QListWidget::keyPressEvent(event);
  const bool again = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (currentRow() >= 0 && (again || currentRow() != before)) emit picked(currentRow());
}

}  // namespace desktop

#include "hosts/desktop/views/pick_list.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStringList>

#include "hosts/desktop/views/context_menu.h"
#include "hosts/desktop/views/copying.h"

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
  if (event->matches(QKeySequence::Copy)) return copy(chosenRow());
  if (event->matches(QKeySequence::SelectAll)) return copyAll();
  if (selectedItems().isEmpty()) setCurrentRow(-1);
  const int before = currentRow();
  QListWidget::keyPressEvent(event);
  const bool again = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (currentRow() >= 0 && (again || currentRow() != before)) emit picked(currentRow());
}

// Another button than the left one picks nothing, so it marks nothing as picked either.
void PickList::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) QListWidget::mousePressEvent(event);
}

int PickList::chosenRow() const { return selectedItems().isEmpty() ? -1 : row(selectedItems().constFirst()); }

void PickList::copy(int row) const {
  if (row >= 0 && row < count()) copyRows(*this, item(row)->text(), 1);
}

void PickList::copyAll() const {
  QStringList names;
  for (int i = 0; i < count(); ++i) names += item(i)->text();
  copyRows(*this, names.join(QLatin1Char('\n')), count());
}

void PickList::contextMenuEvent(QContextMenuEvent* event) {
  const QModelIndex pointed = menuItemOf(*this, *event);
  const int row = event->reason() == QContextMenuEvent::Mouse && pointed.isValid() ? pointed.row() : chosenRow();
  popUpMenu(*this, menuPlace(*this, *event),
            {{"&Copiar", [this, row] { copy(row); }, row >= 0, QKeySequence::Copy},
             {"Copiar &todo", [this] { copyAll(); }, count() > 0, QKeySequence::SelectAll}});
}

}  // namespace desktop

#include "hosts/desktop/views/pick_list.h"

#include <QKeyEvent>

namespace desktop {

PickList::PickList(QWidget& parent) : QListWidget(&parent) {
  setWordWrap(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { emit picked(row(item)); });
}

void PickList::keyPressEvent(QKeyEvent* event) {
  const int before = currentRow();
  QListWidget::keyPressEvent(event);
  const bool again = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (currentRow() >= 0 && (again || currentRow() != before)) emit picked(currentRow());
}

}  // namespace desktop

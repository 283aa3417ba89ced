#include "hosts/desktop/views/context_menu.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QMenu>

namespace desktop {

void popUpMenu(QWidget& owner, QPoint at, const std::vector<MenuItem>& items) {
  auto* menu = new QMenu(&owner);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const MenuItem& item : items) {
    if (*item.text == '\0') {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(QString::fromUtf8(item.text));
    action->setEnabled(item.enabled);
    action->setShortcut(item.keys);
    action->setShortcutVisibleInContextMenu(true);
    QObject::connect(action, &QAction::triggered, &owner, item.does);
  }
  menu->popup(at);
}

QPoint menuPlace(const QAbstractItemView& view, const QContextMenuEvent& event) {
  if (event.reason() == QContextMenuEvent::Mouse) return event.globalPos();
  const QRect item = view.visualRect(view.currentIndex()).intersected(view.viewport()->rect());
  return view.viewport()->mapToGlobal(item.isEmpty() ? QPoint() : item.bottomLeft());
}

QModelIndex menuItemOf(const QAbstractItemView& view, const QContextMenuEvent& event) {
  const QModelIndex pointed = event.reason() == QContextMenuEvent::Mouse ? view.indexAt(event.pos()) : QModelIndex();
  return pointed.isValid() ? pointed : view.currentIndex();
}

}  // namespace desktop

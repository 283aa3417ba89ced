#pragma once

#include <QKeySequence>
#include <QPoint>
#include <functional>
#include <vector>

class QAbstractItemView;
class QContextMenuEvent;
class QModelIndex;
class QWidget;

namespace desktop {

// An entry of a context menu. One without a text is a line between the others.
struct MenuItem {
  const char* text = "";
  std::function<void()> does;
  bool enabled = true;
  QKeySequence keys = {};  // shown beside the text; the widget itself answers to them
};

// Opens a menu over the widget and returns at once; the menu goes when it is left.
void popUpMenu(QWidget& owner, QPoint at, const std::vector<MenuItem>& items);

// Where a view's menu belongs, on the screen: at the pointer, or below the current item when it was asked for by the
// keyboard.
[[nodiscard]] QPoint menuPlace(const QAbstractItemView& view, const QContextMenuEvent& event);
// The item that the menu is about: the one under the pointer, or the current one when there is none or the keyboard
// asked.
[[nodiscard]] QModelIndex menuItemOf(const QAbstractItemView& view, const QContextMenuEvent& event);

}  // namespace desktop

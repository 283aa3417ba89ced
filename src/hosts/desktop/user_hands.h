#pragma once

#include <QPoint>
#include <QWidget>

class QComboBox;

namespace desktop {

// What a user's hands do, as events of the toolkit: for a tour without a display.
namespace hands {

void click(QWidget& widget, QPoint at);
void click(QWidget& widget);  // in its middle
void doubleClick(QWidget& widget);
void drag(QWidget& widget, QPoint from, QPoint to);
// Asks for the context menu of what is there.
void askForMenu(QWidget& widget, QPoint at);
void pointAt(QWidget& widget);
void pointAt(QWidget& widget, QPoint at);
void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// Types into what has the keyboard there, a character at a time.
void type(QWidget& widget, const QString& text);
// Opens the list and picks the item in it.
void pick(QComboBox& combo, int index);
// Lets everything that is waiting happen.
void settle();

}  // namespace hands
}  // namespace desktop

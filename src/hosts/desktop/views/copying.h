#pragma once

#include <QString>

class QAbstractItemView;

namespace desktop {

// Puts a text on the clipboard and says for a moment, beside the view's current item, how many rows it has. Nothing
// happens for an empty text: what was copied before stays.
void copyRows(const QAbstractItemView& view, const QString& text, int rows);

// "Copiada 1 fila", "Copiadas 1.234 filas".
[[nodiscard]] QString copiedNotice(int rows);

}  // namespace desktop

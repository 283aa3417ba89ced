#include "hosts/desktop/views/copying.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>
#include <QToolTip>

namespace desktop {
namespace {

constexpr int kNoticeStays = 1500;  // milliseconds

}  // namespace

void copyRows(const QAbstractItemView& view, const QString& text, int rows) {
  if (text.isEmpty()) return;
  QGuiApplication::clipboard()->setText(text);
  const QRect shown = view.viewport()->rect();
  const QRect item = view.visualRect(view.currentIndex()).intersected(shown);
  const QPoint at = item.isEmpty() ? shown.topLeft() : item.bottomLeft();
  QToolTip::showText(view.viewport()->mapToGlobal(at), copiedNotice(rows), view.viewport(), {}, kNoticeStays);
}

QString copiedNotice(int rows) {
  if (rows == 1) return QStringLiteral("Copiada 1 fila");
  return QStringLiteral("Copiadas %1 filas").arg(QLocale().toString(rows));
}

}  // namespace desktop

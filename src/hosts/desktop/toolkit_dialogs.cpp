#include "hosts/desktop/toolkit_dialogs.h"

#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTreeView>

namespace desktop {
namespace {

void showWholeHeadings(const QFileDialog& dialog) {
  const auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (files == nullptr) return;
  QHeaderView& header = *files->header();
  header.setStretchLastSection(false);
  for (int column = 0; column < header.count(); ++column) {
    header.setSectionResizeMode(column, column == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
  }
}

// The toolkit writes and reads its number in the C locale; what is written here is read here too.
void writeScaleInTheLanguage(QPrintPreviewDialog& dialog) {
  auto* sheet = dialog.findChild<QPrintPreviewWidget*>();
  for (QComboBox* box : dialog.findChildren<QComboBox*>()) {
    QLineEdit* scale = box->lineEdit();
    if (scale == nullptr || sheet == nullptr || !scale->text().endsWith(QLatin1Char('%'))) continue;
    const auto write = [scale] {
      QString text = scale->text();
      const QString point = QLocale().decimalPoint();
      if (text.contains(QLatin1Char('.'))) scale->setText(text.replace(QLatin1Char('.'), point));
    };
    QObject::connect(scale, &QLineEdit::textChanged, scale, write);
    QObject::connect(scale, &QLineEdit::editingFinished, sheet, [scale, sheet] {
      constexpr double kPercent = 100;
      bool isNumber = false;
      const double percent = QLocale().toDouble(scale->text().remove(QLatin1Char('%')).trimmed(), &isNumber);
      if (isNumber && percent > 0) sheet->setZoomFactor(percent / kPercent);
    });
    write();
  }
}

}  // namespace

bool ToolkitDialogs::eventFilter(QObject* watched, QEvent* event) {
  constexpr const char* kMended = "mended";
  if (event->type() != QEvent::Show || !watched->isWidgetType() || watched->property(kMended).toBool()) return false;
  if (auto* files = qobject_cast<QFileDialog*>(watched)) {
    files->setProperty(kMended, true);
    showWholeHeadings(*files);
  } else if (auto* preview = qobject_cast<QPrintPreviewDialog*>(watched)) {
    preview->setProperty(kMended, true);
    writeScaleInTheLanguage(*preview);
  }
  return false;
}

}  // namespace desktop

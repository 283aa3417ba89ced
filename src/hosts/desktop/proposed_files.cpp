#include "hosts/desktop/proposed_files.h"

#include <QDir>
#include <QEvent>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

namespace desktop {
namespace {

constexpr qsizetype kLongestName = 80;  // characters, which are fewer bytes than a file may be named with
const QString kPrinted = QStringLiteral("Documento");

// The file that a document is printed to. A document without a title has the name of its page's file.
QString printFile(const QPrinter& printer) {
  QString name = printer.docName().simplified();
  for (const char* ending : {".html", ".htm"}) {
    const QLatin1String each(ending);
    if (name.endsWith(each, Qt::CaseInsensitive)) name.chop(each.size());
  }
  name = name.left(kLongestName).trimmed();
  return proposedFile((name.isEmpty() ? kPrinted : name) + QLatin1String(".pdf"));
}

}  // namespace

QString proposedFile(const QString& name) {
  QString file = name;
  file.replace(QLatin1Char('/'), QLatin1Char('-'));
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QDir(QDir(folder).exists() && !folder.isEmpty() ? folder : QDir::homePath()).filePath(file);
}

// A dialog that is shown again holds the user's own words.
bool ProposedPrintFiles::eventFilter(QObject* watched, QEvent* event) {
  constexpr const char* kProposed = "proposed";
  auto* dialog = event->type() == QEvent::Show ? qobject_cast<QPrintDialog*>(watched) : nullptr;
  if (dialog == nullptr || dialog->property(kProposed).toBool()) return false;
  dialog->setProperty(kProposed, true);
  auto* file = dialog->findChild<QLineEdit*>(QStringLiteral("filename"));
  if (file != nullptr && dialog->printer()->outputFileName().isEmpty()) file->setText(printFile(*dialog->printer()));
  return false;
}

}  // namespace desktop

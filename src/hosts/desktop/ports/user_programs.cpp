#include "hosts/desktop/ports/user_programs.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

#include "hosts/desktop/ports/desktop_entries.h"

namespace desktop {
namespace {

QString kindOf(const QString& file) {
  const bool isReport = file.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
  return isReport ? QStringLiteral("application/pdf") : QStringLiteral("text/html");
}

}  // namespace

bool UserPrograms::has(Stand stand) const {
  const QString anyReport = QStringLiteral("informe.pdf");
  return stand != Stand::pdfReader || !commandToOpen(anyReport, kindOf(anyReport)).isEmpty();
}

// Where no choice can be read, the toolkit may know a way of its own.
bool UserPrograms::open(const std::string& file) {
  const QString path = QString::fromStdString(file);
  const QStringList command = commandToOpen(path, kindOf(path));
  if (!command.isEmpty() && QProcess::startDetached(command.first(), command.sliced(1))) return true;
  return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

}  // namespace desktop

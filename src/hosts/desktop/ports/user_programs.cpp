#include "hosts/desktop/ports/user_programs.h"

#include <QDesktopServices>
#include <QFile>
#include <QStandardPaths>
#include <QUrl>

namespace desktop {
namespace {

// Where a desktop notes which program opens which kind of file: a line "application/pdf=some.desktop;".
const QStringList kAssociationFiles{QStringLiteral("mimeapps.list"), QStringLiteral("mimeinfo.cache")};

bool associates(const QString& path, const QByteArray& kind) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  while (!file.atEnd()) {
    const QByteArray line = file.readLine().trimmed();
    if (line.startsWith(kind + '=') && line.size() > kind.size() + 1) return true;
  }
  return false;
}

bool hasPdfReader() {
  QStringList folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
  folders += QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
  for (const QString& folder : folders) {
    for (const QString& name : kAssociationFiles) {
      if (associates(folder + QLatin1Char('/') + name, "application/pdf")) return true;
    }
  }
  return false;
}

}  // namespace

bool UserPrograms::has(Stand stand) const { return stand != Stand::pdfReader || hasPdfReader(); }

bool UserPrograms::open(const std::string& file) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(file)));
}

}  // namespace desktop

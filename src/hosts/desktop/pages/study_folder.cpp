#include "hosts/desktop/pages/study_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>

#include "platform/paths.h"

namespace desktop::pages {
namespace {

// Where an application folder keeps its pages.
constexpr std::array kPageFolders{QLatin1String("Tablas"), QLatin1String("Archivos"), QLatin1String("Ayuda")};

bool holdsPages(const QString& folder) {
  for (const QLatin1String& name : kPageFolders) {
    if (folder.compare(name, Qt::CaseInsensitive) == 0) return true;
  }
  return false;
}

QString realPath(const QString& path) {
  return QFileInfo(QString::fromStdString(platform::machinePath(path.toStdString()).string())).canonicalFilePath();
}

}  // namespace

StudyFolder::StudyFolder(const QString& folder) {
  const QString real = realPath(folder);
  if (!real.isEmpty()) root_ = real.endsWith(u'/') ? real : real + u'/';
}

StudyFolder StudyFolder::around(const QString& page) {
  const QString own = QFileInfo(page).absolutePath();
  for (QString at = own; at.size() > 1; at = QFileInfo(at).path()) {
    if (holdsPages(QFileInfo(at).fileName())) return StudyFolder(QFileInfo(at).path());
  }
  return StudyFolder(own);
}

QString StudyFolder::fileAt(const QUrl& address) const {
  if (root_.isEmpty() || !address.isLocalFile() || !address.host().isEmpty()) return {};
  const QString path = address.toLocalFile();
  if (path.contains(QChar::Null)) return {};
  const QString file = realPath(path);
  return file.startsWith(root_) && QFileInfo(file).isFile() ? file : QString();
}

QByteArray firstBytes(const QString& file, qint64 most) {
  QFile opened(file);
  if (!opened.open(QIODevice::ReadOnly)) return {};
  return opened.read(most);
}

}  // namespace desktop::pages

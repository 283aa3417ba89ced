#include "hosts/desktop/pages/reading/study_folder.h"

#include <QFile>
#include <QFileInfo>

#include "platform/paths.h"

namespace desktop::pages {
namespace {

QString realPath(const QString& path) {
  return QFileInfo(QString::fromStdString(platform::machinePath(path.toStdString()).string())).canonicalFilePath();
}

}  // namespace

StudyFolder::StudyFolder(const QString& folder) {
  if (folder.isEmpty()) return;
  const QString real = realPath(folder);
  if (!real.isEmpty()) root_ = real.endsWith(u'/') ? real : real + u'/';
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
  if (file.isEmpty() || !opened.open(QIODevice::ReadOnly)) return {};
  return opened.read(most);
}

}  // namespace desktop::pages

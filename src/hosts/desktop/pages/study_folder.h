#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace desktop::pages {

// The folder that pages are shown from. Nothing outside it is read for them, whatever they ask for: not by "..", not by
// an absolute path, not through a link of the file system, and nothing from a network.
class StudyFolder {
 public:
  // A folder that holds nothing.
  StudyFolder() = default;
  explicit StudyFolder(const QString& folder);

  // The application folder that a page lies in: the one that holds the folder "Tablas", "Archivos" or "Ayuda" nearest
  // above the page; else the page's own folder. The page itself need not exist.
  [[nodiscard]] static StudyFolder around(const QString& page);

  // The real path of the file at an address, or empty where there is none in this folder. Names are matched without
  // regard to case.
  [[nodiscard]] QString fileAt(const QUrl& address) const;

 private:
  QString root_;  // its real path with "/" at the end, or empty
};

// The first `most` bytes of a file, or nothing.
[[nodiscard]] QByteArray firstBytes(const QString& file, qint64 most);

}  // namespace desktop::pages

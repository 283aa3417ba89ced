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
  // The application folder, by its machine path; one that holds nothing where there is no such folder.
  explicit StudyFolder(const QString& folder);

  // The real path of the file at an address, or empty where there is none in this folder. Names are matched without
  // regard to case.
  [[nodiscard]] QString fileAt(const QUrl& address) const;

 private:
  QString root_;  // its real path with "/" at the end, or empty
};

// The first `most` bytes of a file, or nothing; of no file ("") nothing too.
[[nodiscard]] QByteArray firstBytes(const QString& file, qint64 most);

}  // namespace desktop::pages

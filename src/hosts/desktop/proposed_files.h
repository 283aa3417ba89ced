#pragma once

#include <QObject>
#include <QString>

namespace desktop {

// Where a file of that name is proposed: among the user's documents, or at home where there is no folder for them. What
// no file's name may hold becomes a hyphen.
[[nodiscard]] QString proposedFile(const QString& name);

// Proposes the file that a print dialog writes: named after the document that is printed, among the user's documents.
// To be installed as an event filter of the application.
class ProposedPrintFiles : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace desktop

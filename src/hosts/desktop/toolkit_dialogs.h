#pragma once

#include <QObject>

namespace desktop {

// Mends what the toolkit's own dialogs show, when they are shown: the columns of a list of files are as wide as their
// headings, the scale of a print preview is written with the language's decimal sign. To be installed on the
// application.
class ToolkitDialogs : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace desktop

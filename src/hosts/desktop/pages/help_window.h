#pragma once

#include <QWidget>

#include "hosts/desktop/pages/reading/study_folder.h"

namespace desktop::pages {

class PageBrowser;

// The study's help in a window of its own: its pages, with back, forward and the first page. It is shown beside the
// program's windows and holds none of them up.
class HelpWindow : public QWidget {
 public:
  // Shows the page at a machine path, in the study's folder. `beside` is the window that it opens over at first; it may
  // be null.
  HelpWindow(const QString& path, const StudyFolder& folder, const QWidget* beside);

  // Shows the first page again, in front.
  void showContents();
  [[nodiscard]] PageBrowser& page() const { return *page_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void addButtons();

  QString path_;
  StudyFolder folder_;
  PageBrowser* page_;
};

}  // namespace desktop::pages

#pragma once

#include <QTextBrowser>
#include <memory>
#include <optional>
#include <vector>

#include "hosts/desktop/pages/reading/page_text.h"
#include "hosts/desktop/pages/reading/study_folder.h"
#include "hosts/desktop/pages/text_search.h"
#include "hosts/desktop/wait_cursor.h"

class QLabel;
class QTimer;

namespace desktop::pages {

class FindBar;

// Shows a page of the study, and the pages that its links lead to as long as they lie in the study's folder. With find
// in page (Ctrl+F, F3), zoom (Ctrl and + - 0 or the wheel), copies that keep the columns of tables, print (Ctrl+P) and
// a menu of these.
class PageBrowser : public QTextBrowser {
 public:
  explicit PageBrowser(QWidget* parent);
  ~PageBrowser() override;

  // Shows a page by its machine path; a notice where there is none in the folder, from which alone everything is read.
  // What was shown before is forgotten.
  void openPage(const QString& path, const StudyFolder& folder);
  // Whether a page is shown, and not the notice that there is none. Without one there is nothing to print or to search.
  [[nodiscard]] bool hasPage() const { return hasPage_; }
  // The title of the page shown, else its file's name; empty before the first.
  [[nodiscard]] QString pageName() const;

  void openFind();
  void closeFind();
  [[nodiscard]] bool isFinding() const;
  // Goes to the next place, or the one before, and from the last to the first; asks for words where there are none.
  void findNext(bool forward);

  [[nodiscard]] double zoom() const { return zoom_; }
  void zoomBy(int steps);
  void zoomToNormal();

  // Back to the page that was opened, from wherever its links have led.
  void showOpened() { openPage(opened_, folder_); }

  // Opens the preview of the printed page; says so where its file has gone.
  void previewPrint();

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void addShortcuts();
  [[nodiscard]] QString readHtml(const QUrl& address);
  void settlePage(const QUrl& address);
  void layOut();
  void settleMargins();
  void setZoom(double zoom);
  void select(int anchor, int position);
  void say(const QString& text);
  void placeOverlays();
  void search(const QString& words);
  void showMatch(std::size_t index);
  void highlightMatches();

  QString opened_;
  StudyFolder folder_;
  PageText page_;
  bool hasPage_ = false;
  std::optional<WaitCursor> wait_;  // while a large page is read and laid out
  double zoom_ = 1;
  int wheelTurned_ = 0;
  FindBar* findBar_;
  std::vector<Match> matches_;
  std::size_t match_ = 0;
  QLabel* notice_;
  QTimer* noticeTimer_;
};

}  // namespace desktop::pages

#pragma once

#include <QTreeWidget>

namespace desktop {

// The tree of indicators: long texts are broken, and a figure at a text's end ("Población: 1.234") stands in a column
// of its own at the right. Enter and the space bar open and close a branch as a double click does, an asterisk opens
// all of it; the context menu copies, opens and closes.
class IndicatorTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit IndicatorTree(QWidget& parent);

 signals:
  // The user wants the item and all below it on the clipboard.
  void copyAsked(QTreeWidgetItem* branch);
  void copyAllAsked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;

 private:
  void openBranch(QTreeWidgetItem& item, bool open);
  void openAll(bool open);
  void askForCopy();
};

// A node's text and the figure at its end, empty where there is none.
struct IndicatorText {
  QString text;
  QString figure;
};
[[nodiscard]] IndicatorText splitIndicator(const QString& nodeText);

}  // namespace desktop

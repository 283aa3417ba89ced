#pragma once

#include <QTreeWidget>

namespace desktop {

// The tree of indicators: long texts are broken, and a figure at a text's end ("Población: 1.234") stands in a column
// of its own at the right.
class IndicatorTree : public QTreeWidget {
 public:
  explicit IndicatorTree(QWidget& parent);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;
};

// A node's text and the figure at its end, empty where there is none.
struct IndicatorText {
  QString text;
  QString figure;
};
[[nodiscard]] IndicatorText splitIndicator(const QString& nodeText);

}  // namespace desktop

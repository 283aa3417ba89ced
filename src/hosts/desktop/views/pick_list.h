#pragma once

#include <QListWidget>

namespace desktop {

// A list that tells of every pick of the user's: by the mouse, also of the row already chosen, and by the keyboard. A
// double click is one pick. Its names can be copied.
class PickList : public QListWidget {
  Q_OBJECT

 public:
  explicit PickList(QWidget& parent);

  // Sizes in pixels, of rows that hold one line: the rows that fill a height, the last one perhaps in part, and the
  // height that so many rows need.
  [[nodiscard]] int rowsIn(int height) const;
  [[nodiscard]] int heightOfRows(int rows) const;

 signals:
  void picked(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void copy(int row) const;
  void copyAll() const;
  [[nodiscard]] int chosenRow() const;
  int rowHeight_ = 0;
  int border_ = 0;  // above and below the rows together
};

}  // namespace desktop

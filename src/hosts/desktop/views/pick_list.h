#pragma once

#include <QListWidget>

namespace desktop {

// A list that tells of every pick of the user's: by the mouse, also of the row already chosen, and by the keyboard.
class PickList : public QListWidget {
  Q_OBJECT

 public:
  explicit PickList(QWidget& parent);

 signals:
  void picked(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace desktop

#pragma once

#include <QLabel>

namespace desktop {

// A text to wait by: a tall one veils what lies under it, a small one stands out on it.
class Notice : public QLabel {
 public:
  explicit Notice(QWidget& parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop

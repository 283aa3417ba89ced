#pragma once

#include <QObject>
#include <QWidget>

namespace desktop {

// Keeps a palette in front of the other small windows of its owner, such as the legend of a map: it comes to the front
// again when one of them is shown or used.
class PaletteFront : public QObject {
 public:
  explicit PaletteFront(QWidget& palette);  // lives as long as the palette
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool isBeside(const QWidget& window) const;

  QWidget& palette_;
};

}  // namespace desktop

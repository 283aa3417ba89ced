#pragma once

#include <QPointer>
#include <QWidget>

namespace motor {

// Keeps a widget as large as the one it lies in, also when it gets another parent.
class ParentFiller : public QObject {
 public:
  // `child` outlives this.
  explicit ParentFiller(QWidget& child);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void watchParent();
  void fill();

  QWidget& child_;
  QPointer<QWidget> parent_;
};

}  // namespace motor

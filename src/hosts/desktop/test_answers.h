#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QString>
#include <QTimer>

namespace desktop::testing {

// While it lives, each message box that opens is answered with its first button, by a timer, since whoever opened it
// waits.
class MessageAnswers {
 public:
  MessageAnswers() {
    constexpr int kLook = 10;  // milliseconds
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(kLook);
  }

  // The text of the box answered last; empty before the first.
  [[nodiscard]] const QString& said() const { return said_; }

 private:
  void look() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    said_ = box->text();
    box->buttons().constFirst()->click();
  }

  QTimer timer_;
  QString said_;
};

}  // namespace desktop::testing

#include "dialog_user.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QThread>
#include <QWindow>
#include <cstdlib>
#include <iostream>
#include <utility>

#include "random_hands.h"

namespace monkey {
namespace {

constexpr int kInterval = 2;  // milliseconds

}  // namespace

DialogUser::DialogUser(std::uint64_t seed, std::string folder) : random_(seed), folder_(std::move(folder)) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
  timer_.start(kInterval);
}

std::vector<std::string> DialogUser::takeLog() { return std::exchange(log_, {}); }

void DialogUser::look() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  const bool waits = QThread::currentThread()->loopLevel() > 0;
  tries_ = dialog != nullptr || waits ? tries_ + 1 : 0;
  if (isStuck()) {  // whoever waits for it would wait for ever
    std::cerr << "a dialog does not close: " << (dialog == nullptr ? "none is open" : nameOf(*dialog)) << std::endl;
    std::abort();
  }
  if (dialog != nullptr) {
    closeDialog(*dialog);
  } else if (waits) {
    endOtherLoop();
  }
}

void DialogUser::closeDialog(QDialog& dialog) {
  log_.push_back("closes " + nameOf(dialog) + " " + dialog.windowTitle().toStdString());
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
    log_.back() += ": " + box->text().toStdString();
    const QList<QAbstractButton*> buttons = box->buttons();
    return buttons[below(static_cast<int>(buttons.size()))]->click();
  }
  auto* files = qobject_cast<QFileDialog*>(&dialog);
  if (files != nullptr && below(2) == 0 && tries_ < kPatience / 2) {
    files->selectFile(QString::fromStdString(folder_ + "/copia" + std::to_string(below(5))));
    QMetaObject::invokeMethod(files, "accept");
    return;
  }
  below(2) == 0 ? dialog.reject() : static_cast<void>(dialog.close());
}

// Something is being dragged: the button is released, or Escape pressed.
void DialogUser::endOtherLoop() {
  QWindow* window = QGuiApplication::focusWindow();
  if (window == nullptr) return;
  log_.push_back("gives up a drag");
  if (below(2) == 0) {
    QTest::keyClick(window, Qt::Key_Escape);
  } else {
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
  }
}

}  // namespace monkey

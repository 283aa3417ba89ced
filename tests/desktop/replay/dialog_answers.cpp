#include "dialog_answers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

namespace desktop_replay {
namespace {

constexpr int kBlink = 2;  // milliseconds

QMessageBox::ButtonRole roleOf(platform::Button button) {
  switch (button) {
    case platform::Button::yes:
      return QMessageBox::YesRole;
    case platform::Button::no:
      return QMessageBox::NoRole;
    case platform::Button::ok:
      break;
  }
  return QMessageBox::AcceptRole;
}

// The button in that role, or else the first one.
QAbstractButton& buttonOf(const QMessageBox& box, std::optional<platform::Button> button) {
  const QList<QAbstractButton*> buttons = box.buttons();
  for (QAbstractButton* each : buttons) {
    if (button && box.buttonRole(each) == roleOf(*button)) return *each;
  }
  return *buttons.constFirst();
}

}  // namespace

DialogAnswers::DialogAnswers() {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
  timer_.start(kBlink);
}

void DialogAnswers::look() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || dialog == answered_) return;
  answered_ = dialog;
  answer(*dialog);
}

void DialogAnswers::answer(QDialog& dialog) {
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) return buttonOf(*box, buttons_.take()).click();
  auto* files = qobject_cast<QFileDialog*>(&dialog);
  const auto name = names_.take().value_or(std::nullopt);
  if (files == nullptr || !name) return dialog.reject();
  files->selectFile(QString::fromStdString(*name));
  QMetaObject::invokeMethod(files, "accept");
}

}  // namespace desktop_replay

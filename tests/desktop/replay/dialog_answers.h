#pragma once

#include <QPointer>
#include <QTimer>
#include <deque>
#include <optional>
#include <string>

#include "platform/messages.h"

class QDialog;

namespace desktop_replay {

// Answers the message boxes and save dialogs of a replay, by a timer since whoever opened one waits: as prepared, else
// Yes where there is a Yes, OK elsewhere, and save dialogs are cancelled.
class DialogAnswers {
 public:
  DialogAnswers();

  void prepareAnswer(platform::Button button) { buttons_.push_back(button); }
  void prepareName(const std::string& name) { names_.emplace_back(name); }
  void prepareCancel() { names_.emplace_back(std::nullopt); }

 private:
  void look();
  void answer(QDialog& dialog);

  QTimer timer_;
  QPointer<QDialog> answered_;
  std::deque<platform::Button> buttons_;
  std::deque<std::optional<std::string>> names_;
};

}  // namespace desktop_replay

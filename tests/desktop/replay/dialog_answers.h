#pragma once

#include <QPointer>
#include <QTimer>
#include <optional>
#include <string>

#include "hosts/headless/prepared_answers.h"
#include "platform/messages.h"

class QDialog;

namespace desktop_replay {

// Answers the message boxes and save dialogs of a replay, by a timer since whoever opened one waits: as prepared, else
// Yes where there is a Yes, OK elsewhere, and save dialogs are cancelled.
class DialogAnswers {
 public:
  DialogAnswers();

  void prepareAnswer(platform::Button button) { buttons_.prepare(button); }
  void prepareName(const std::string& name) { names_.prepare(name); }
  void prepareCancel() { names_.prepare(std::nullopt); }

 private:
  void look();
  void answer(QDialog& dialog);

  QTimer timer_;
  QPointer<QDialog> answered_;
  headless::PreparedAnswers<platform::Button> buttons_;
  headless::PreparedAnswers<std::optional<std::string>> names_;
};

}  // namespace desktop_replay

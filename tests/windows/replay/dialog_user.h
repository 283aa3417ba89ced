#pragma once

#include <optional>
#include <string>

#include "hosts/headless/prepared_answers.h"
#include "hosts/windows/ports/test_box_user.h"
#include "platform/messages.h"

namespace wintest {

// A user of the program's modal boxes, who presses their buttons. Message boxes are answered as prepared, else Yes
// where there is a Yes and OK elsewhere; save dialogs get the name prepared, else are cancelled.
class DialogUser {
 public:
  void prepareAnswer(platform::Button button) { answers_.prepare(button); }
  void prepareName(const std::string& name) { names_.prepare(name); }
  void prepareCancel() { names_.prepare(std::nullopt); }

 private:
  void answer(HWND dialog);
  void answerSaveDialog(HWND dialog, HWND name);
  [[nodiscard]] int buttonFor(HWND box);

  headless::PreparedAnswers<platform::Button> answers_;
  headless::PreparedAnswers<std::optional<std::string>> names_;
  windows::testing::BoxUser boxes_{[this](HWND box) { answer(box); }};
};

}  // namespace wintest

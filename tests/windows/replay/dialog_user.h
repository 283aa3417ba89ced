#pragma once

#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>

#include "hosts/headless/prepared_answers.h"
#include "hosts/windows/win32/windows_h.h"
#include "platform/messages.h"

namespace wintest {

// A user of the program's modal boxes: finds them on the screen, from a thread of its own, and presses their buttons.
// Message boxes are answered as prepared, else Yes where there is a Yes and OK elsewhere; save dialogs get the name
// prepared, else are cancelled.
class DialogUser {
 public:
  DialogUser();
  ~DialogUser();
  DialogUser(const DialogUser&) = delete;
  DialogUser& operator=(const DialogUser&) = delete;

  void prepareAnswer(platform::Button button);
  void prepareName(const std::string& name);
  void prepareCancel();

 private:
  void watch();
  void answer(HWND dialog);
  void answerSaveDialog(HWND dialog, HWND name);
  [[nodiscard]] int buttonFor(HWND box);

  std::mutex mutex_;
  headless::PreparedAnswers<platform::Button> answers_;
  headless::PreparedAnswers<std::optional<std::string>> names_;
  std::set<HWND> answered_;
  bool leaving_ = false;
  std::thread thread_;
};

}  // namespace wintest

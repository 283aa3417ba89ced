#pragma once

#include <string>

#include "hosts/headless/prepared_answers.h"
#include "platform/messages.h"

namespace headless {

// Message boxes that are answered at once: as prepared, else Yes where there is a Yes and OK elsewhere.
class ScriptedMessages : public platform::Messages {
 public:
  // What the next box that has no answer yet gets.
  void prepare(platform::Button answer) { answers_.prepare(answer); }

  platform::Button show(const std::string& text, int style, const std::string& title) override;

 private:
  PreparedAnswers<platform::Button> answers_;
};

}  // namespace headless

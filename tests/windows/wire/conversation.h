#pragma once

#include <functional>
#include <optional>
#include <string>

#include "wire/fields.h"
#include "wire/line.h"

namespace wire {

// Two sides that ask each other, each question answered before the one that it came in between: while a side waits for
// its answer it answers what the other side asks meanwhile.
class Conversation {
 public:
  // The line outlives the conversation.
  explicit Conversation(Line& line) : line_(line) {}

  // What this side does about a question. Whatever it throws ends the conversation.
  std::function<Fields(const Fields& question)> answer;
  // Around each wait for the other side, for whoever shares things between several conversations.
  std::function<void()> beforeWait;
  std::function<void()> afterWait;

  // Asks and waits for the answer. Fails with std::runtime_error when the other side is gone.
  Fields ask(const Fields& question);
  // Answers questions until the other side is gone.
  void serve();

 private:
  // The next answer, questions before it being answered; none when the other side is gone.
  [[nodiscard]] std::optional<Fields> nextAnswer();
  [[nodiscard]] std::optional<std::string> waitForText();

  Line& line_;
};

}  // namespace wire

#pragma once

#include <deque>
#include <optional>
#include <utility>

namespace headless {

// Answers laid ready for questions to come, given in their order.
template <class Answer>
class PreparedAnswers {
 public:
  void prepare(Answer answer) { answers_.push_back(std::move(answer)); }
  // The next one; none when none is left.
  [[nodiscard]] std::optional<Answer> take() {
    if (answers_.empty()) return std::nullopt;
    std::optional<Answer> first(std::move(answers_.front()));
    answers_.pop_front();
    return first;
  }

 private:
  std::deque<Answer> answers_;
};

}  // namespace headless

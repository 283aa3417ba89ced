#include "wire/conversation.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace wire {
namespace {

// The other side: answers "double N" by N twice, and "ask N" by N words that it asks for.
void otherSide(Listener& listener) {
  Line line(listener.accept());
  Conversation conversation(line);
  conversation.answer = [&conversation](const Fields& question) -> Fields {
    if (question[0] == "double") return {question[1] + question[1]};
    if (question[0] == "stop") throw std::runtime_error("stopped");
    Fields words{"asked"};
    for (int i = 0; i < std::stoi(question[1]); ++i) words.push_back(conversation.ask({"word", std::to_string(i)})[0]);
    return words;
  };
  try {
    conversation.serve();
  } catch (const std::runtime_error&) {
    // The line closes.
  }
}

TEST(ConversationTest, QuestionsComeInBetween) {
  Listener listener;
  std::thread other(otherSide, std::ref(listener));
  {
    Line line(listener.port());
    Conversation conversation(line);
    conversation.answer = [&conversation](const Fields& question) {
      EXPECT_EQ(question[0], "word");
      return conversation.ask({"double", question[1]});
    };
    EXPECT_EQ(conversation.ask({"ask", "3"}), (Fields{"asked", "00", "11", "22"}));
    EXPECT_EQ(conversation.ask({"double", "ñ\n"}), (Fields{"ñ\nñ\n"}));
    EXPECT_THROW(conversation.ask({"stop"}), std::runtime_error);
    EXPECT_THROW(conversation.ask({"double", "x"}), std::runtime_error);
  }
  other.join();
}

TEST(ConversationTest, NobodyAtThePort) {
  std::uint16_t port = 0;
  {
    const Listener gone;
    port = gone.port();
  }
  EXPECT_THROW(Line{port}, std::runtime_error);
}

}  // namespace
}  // namespace wire

#include "wire/conversation.h"

#include <stdexcept>

namespace wire {
namespace {

constexpr char kQuestion = '?';
constexpr char kAnswer = '=';

}  // namespace

Fields Conversation::ask(const Fields& question) {
  line_.send(kQuestion + packed(question));
  auto given = nextAnswer();
  if (!given) throw std::runtime_error("the other side is gone");
  return *std::move(given);
}

void Conversation::serve() {
  if (nextAnswer()) throw std::runtime_error("an answer that nobody asked for");
}

std::optional<Fields> Conversation::nextAnswer() {
  while (const auto text = waitForText()) {
    auto fields = text->empty() ? std::nullopt : unpacked(std::string_view(*text).substr(1));
    if (!fields || fields->empty()) throw std::runtime_error("neither question nor answer");
    if (text->front() == kAnswer) return fields;
    line_.send(kAnswer + packed(answer(*fields)));
  }
  return std::nullopt;
}

std::optional<std::string> Conversation::waitForText() {
  if (beforeWait) beforeWait();
  auto text = line_.receive();
  if (afterWait) afterWait();
  return text;
}

}  // namespace wire

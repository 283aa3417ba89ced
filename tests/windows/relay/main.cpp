#include <QGuiApplication>
#include <iostream>
#include <mutex>
#include <optional>
#include <thread>

#include "relay/runs.h"
#include "relay/served_engine.h"
#include "wire/conversation.h"

// The map engine behind the test engine: waits at a port of this machine, prints "port N", and serves each connection
// until it closes. It ends when its standard input does.
namespace {

// Only the one who holds it works; whoever waits for the other side lets it go.
std::mutex atWork;
relay::Runs runs;

void serve(wire::Line::Accepted accepted) {
  try {
    wire::Line line(accepted);
    std::unique_lock lock(atWork);
    wire::Conversation conversation(line);
    conversation.beforeWait = [&lock] { lock.unlock(); };
    conversation.afterWait = [&lock] { lock.lock(); };
    std::optional<relay::ServedEngine> engine;
    conversation.answer = [&](const wire::Fields& question) -> wire::Fields {
      if (question[0] != "open") return engine.value().answer(question);
      engine.emplace(conversation, runs.at(question.at(1)));
      return {"done"};
    };
    conversation.serve();
  } catch (const std::exception& problem) {
    std::cerr << "engine-relay: " << problem.what() << std::endl;
  }
}

[[noreturn]] void serveAll(wire::Listener& listener) {
  while (true) std::thread(serve, listener.accept()).detach();
}

}  // namespace

int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(count, words);
  wire::Listener listener;
  std::cout << "port " << listener.port() << std::endl;
  std::thread(serveAll, std::ref(listener)).detach();
  while (std::cin.get() != std::char_traits<char>::eof()) {
  }
  std::quick_exit(0);
}

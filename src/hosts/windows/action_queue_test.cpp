#include "hosts/windows/action_queue.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/programs.h"

namespace windows {
namespace {

class Queue : public ::testing::Test {
 protected:
  void SetUp() override {
    calls.returned = [this] { queue.wake(); };
  }
  ActionQueue::Action saying(const std::string& word) {
    return [this, word] { said.push_back(word); };
  }
  static void runMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
  }

  using Words = std::vector<std::string>;
  screen::ProgramCalls calls;
  ActionQueue queue{calls};
  Words said;
};

TEST_F(Queue, RunsActionsInTheirOrderWhenMessagesRun) {
  queue.post(saying("uno"));
  queue.postWhenFree(saying("dos"));
  EXPECT_EQ(said, Words{});
  runMessages();
  EXPECT_EQ(said, (Words{"uno", "dos"}));
}

TEST_F(Queue, ForgetsWhatTheUserDoesWhileTheProgramWorks) {
  calls.run([this] {
    queue.post(saying("clic"));
    queue.postWhenFree(saying("cierre"));
    queue.postOwn(saying("propio"));
    runMessages();
    EXPECT_EQ(said, Words{});
  });
  runMessages();
  EXPECT_EQ(said, (Words{"cierre", "propio"}));
}

TEST_F(Queue, LeavesNothingBehindItsOwnActions) {
  calls.run([this] {
    queue.postOwn(saying("propio"));
    queue.postWhenFree(saying("cierre"));
  });
  runMessages();
  EXPECT_EQ(said, (Words{"propio", "cierre"}));
}

TEST_F(Queue, KeepsWhatWaitedWhenACallBegins) {
  queue.post(saying("antes"));
  calls.run([] { runMessages(); });
  EXPECT_EQ(said, Words{});
  runMessages();
  EXPECT_EQ(said, Words{"antes"});
}

TEST_F(Queue, TellsAProgramThatHasEndedNothing) {
  calls.run([] { throw platform::ProgramEnd{}; });
  queue.postWhenFree(saying("clic"));
  runMessages();
  EXPECT_EQ(said, Words{});
}

}  // namespace
}  // namespace windows

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "engine/orders.h"
#include "hosts/windows/com/ole_thread.h"
#include "hosts/windows/ports/ole_engines.h"
#include "ole/becomes_true.h"
#include "ole/engine_box.h"
#include "ole/process_counts.h"
#include "replay/engine_orders.h"
#include "replay/test_place.h"
#include "text/failure.h"

// The engine port against the test engine, in whichever kind of server is registered.
namespace wintest {
namespace {

constexpr const char* kProgramId = "MapInfo.runtime";

bool isInThisProcess() { return processOf(engineListening()) == GetCurrentProcessId(); }

LRESULT objectsOfEngine() { return SendMessageW(engineListening(), testengine::kCountObjects, 0, 0); }

class Calls : public platform::CallbackObject {
 public:
  [[nodiscard]] std::string className() const override { return "MICallback"; }
  [[nodiscard]] std::vector<std::string> methods() const override { return {"infoEstadisticas", "info"}; }
  bool invoke(const std::string& method, const std::string& message) override {
    heard.push_back(method + " " + message);
    if (whenCalled) whenCalled();
    return true;
  }

  Calls() { ++alive; }
  ~Calls() override { --alive; }
  Calls(const Calls&) = delete;
  Calls& operator=(const Calls&) = delete;

  static inline int alive = 0;
  std::vector<std::string> heard;
  std::function<void()> whenCalled;
};

class Ole : public ::testing::Test {
 protected:
  static void handleMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
  }

  Ole() { TestPlace::fromEnvironment().tellEngine("ole"); }

  windows::OleThread ole;
  windows::OleEngines engines;
  EngineOrders orders{[] {
    handleMessages();
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }};
  std::shared_ptr<Calls> calls = std::make_shared<Calls>();
};

// What this process and the engine's hold, which may be the same.
struct Counts {
  Counts() {
    EXPECT_GT(own.drawingObjects, 0);
    EXPECT_GT(own.memoryBlocks, 0);
    EXPECT_GT(server.memoryBlocks, 0);
    EXPECT_GT(server.handles, 0);
  }
  ProcessCounts own = ProcessCounts::ofThisProcess();
  ProcessCounts server = ProcessCounts::ofServer();
};

std::ostream& operator<<(std::ostream& out, const Counts& counts) {
  return out << ' ' << counts.own << " (server: " << counts.server << ')';
}

int numberOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const Failure& failure) {
    return failure.number();
  }
  return 0;
}

TEST_F(Ole, StatementsExpressionsAndTheirFailures) {
  const auto engine = engines.create(kProgramId);
  ASSERT_NE(engine, nullptr);
  EXPECT_EQ(engine->eval("1+1"), platform::Variant("2"));
  EXPECT_EQ(engine->eval("\"Ñorga año\""), platform::Variant("Ñorga año"));
  EXPECT_EQ(engine->eval("1=1"), platform::Variant("T"));
  engine->run("dim x as integer");
  try {
    engine->run("nada de eso");
    ADD_FAILURE() << "it was accepted";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.number(), failures::kEngineRejected);
    EXPECT_EQ(failure.description(), "línea 1, columna 1: «nada»: se esperaba el principio de una instrucción");
  }
  EXPECT_EQ(engine->eval("2*3"), platform::Variant("6")) << "it goes on after a failure";
  EXPECT_EQ(numberOf([&] { (void)engines.create("No.such.engine"); }), failures::kCannotCreateObject);
}

TEST_F(Ole, CallbacksByNameInAnyCaseAndInsideCalls) {
  const auto engine = engines.create(kProgramId);
  engine->setCallback(calls);
  calls->whenCalled = [&] { calls->heard.push_back(engine->eval("1+2").text()); };
  engine->run("call back Info MI:1,2");
  engine->run("call back INFOESTADISTICAS MI:ñ");
  EXPECT_EQ(calls->heard, (std::vector<std::string>{"info MI:1,2", "3", "infoEstadisticas MI:ñ", "3"}));
  EXPECT_EQ(numberOf([&] { engine->run("call back nada x"); }), failures::kEngineRejected);
}

TEST_F(Ole, NoFailureLeavesTheCallbackObject) {
  const auto engine = engines.create(kProgramId);
  engine->setCallback(calls);
  calls->whenCalled = [] { throw Failure(91, "nada"); };
  EXPECT_EQ(numberOf([&] { engine->run("call back info MI:1,2"); }), failures::kEngineRejected);
  EXPECT_EQ(engine->eval("1+1"), platform::Variant("2"));
}

TEST_F(Ole, TheEngineCallsBackByItself) {
  const auto engine = engines.create(kProgramId);
  engine->setCallback(calls);
  EXPECT_TRUE(orders.give({"callback", "info", "MI:3,4"}));
  EXPECT_FALSE(orders.give({"callback", "nada", "MI:3,4"}));
  EXPECT_EQ(calls->heard, std::vector<std::string>{"info MI:3,4"});
}

// Four calls a round: a statement that calls back, which asks once more, a new callback object, and an expression.
// Every tenth round the statement fails instead and nobody is asked.
TEST_F(Ole, TenThousandCallsLeaveNothingBehind) {
  constexpr int kRounds = 2600;
  constexpr int kCalls = 4 * kRounds - kRounds / 10;
  static_assert(kCalls > 10'000);
  constexpr int kWarmUp = 200;
  auto engine = engines.create(kProgramId);
  int asked = 0;
  const auto playRound = [&](int round) {
    auto object = std::make_shared<Calls>();
    object->whenCalled = [&engine, &asked] { asked += engine->eval("here 1").int32(); };
    engine->setCallback(object);
    object.reset();
    EXPECT_EQ(engine->eval("here ñ"), platform::Variant("ñ"));
    const bool fails = round % 10 == 0;
    EXPECT_EQ(numberOf([&] { engine->run(fails ? "call back nada x" : "call back info MI:1,2"); }),
              fails ? failures::kEngineRejected : 0);
  };
  for (int round = 0; round < kWarmUp; ++round) playRound(round);
  const Counts before;
  for (int round = 0; round < kRounds; ++round) playRound(round);
  const Counts after;
  std::cout << (isInThisProcess() ? "DLL" : "program") << ": " << kCalls << " calls;" << before << " ->" << after
            << '\n';
  EXPECT_EQ(asked, (kRounds + kWarmUp) * 9 / 10);
  EXPECT_EQ(after.own.lostSince(before.own), "");
  EXPECT_EQ(after.server.lostSince(before.server), "");
  EXPECT_EQ(objectsOfEngine(), 1);
  EXPECT_EQ(Calls::alive, 2) << "the one that the engine has and this test's";
  engine.reset();
  EXPECT_EQ(Calls::alive, 1);
  EXPECT_TRUE(becomesTrue([] { return engineListening() == nullptr; })) << "the engine is still there";
}

TEST_F(Ole, AHundredEnginesLeaveNothingBehind) {
  constexpr int kEngines = 100;
  const auto live = [&] {
    const auto engine = engines.create(kProgramId);
    engine->setCallback(calls);
    engine->run("call back info MI:1,2");
  };
  for (int i = 0; i < 10; ++i) live();
  handleMessages();
  const ProcessCounts before = ProcessCounts::ofThisProcess();
  for (int i = 0; i < kEngines; ++i) live();
  ProcessCounts after;
  // The system lets go of a connection to a process some time after that has ended.
  EXPECT_TRUE(becomesTrue([&] {
    handleMessages();
    after = ProcessCounts::ofThisProcess();
    return after.lostSince(before).empty();
  })) << after.lostSince(before);
  std::cout << kEngines << " engines; " << before << " -> " << after << '\n';
  EXPECT_EQ(calls.use_count(), 1);
}

TEST_F(Ole, AnEngineThatDiesFailsItsCallAndEveryLaterOne) {
  auto engine = engines.create(kProgramId);
  if (isInThisProcess()) GTEST_SKIP() << "an engine in this process would take the test along";
  ASSERT_TRUE(orders.give({"die", "3"}));
  EXPECT_EQ(numberOf([&] { (void)engine->eval("1"); }), 0);
  EXPECT_EQ(numberOf([&] { (void)engine->eval("1"); }), 0);
  EXPECT_NE(numberOf([&] { (void)engine->eval("1"); }), 0);
  for (int i = 0; i < 5; ++i) EXPECT_NE(numberOf([&] { engine->run("set map zoom entire"); }), 0);
  EXPECT_NE(numberOf([&] { engine->setCallback(calls); }), 0);
  engine.reset();
  EXPECT_EQ(engines.create(kProgramId)->eval("1+1"), platform::Variant("2"));
}

TEST_F(Ole, AModalBoxOfTheEngineDelaysItsCallOnly) {
  const auto engine = engines.create(kProgramId);
  ASSERT_TRUE(orders.give({"box", "1"}));
  const EngineBox box;
  EXPECT_EQ(engine->eval("1+1"), platform::Variant("2"));
  EXPECT_TRUE(box.wasSeen());
}

}  // namespace
}  // namespace wintest

#include <gtest/gtest.h>

#include <memory>
#include <thread>

#include "hosts/windows/com/busy_engine.h"
#include "hosts/windows/com/ole_thread.h"
#include "hosts/windows/ports/ole_engines.h"
#include "hosts/windows/ports/waited_engines.h"
#include "hosts/windows/test_program.h"
#include "hosts/windows/win32/z_order.h"
#include "ole/becomes_true.h"
#include "ole/process_counts.h"
#include "replay/engine_orders.h"
#include "replay/test_place.h"
#include "text/failure.h"

// The program's windows while the test engine, in a process of its own, keeps the program waiting with a modal box.
namespace wintest {
namespace {

using windows::testing::Program;

HWND engineBox() { return FindWindowW(L"#32770", L"MapInfo"); }

// A box with one button has it under another number.
void pressOk(HWND box) {
  for (const int button : {IDOK, IDCANCEL}) PostMessageW(GetDlgItem(box, button), BM_CLICK, 0, 0);
}

void endProcess(DWORD id) {
  const windows::KernelHandle process(OpenProcess(PROCESS_TERMINATE, FALSE, id));
  TerminateProcess(process.get(), 1);
}

class EngineWait : public ::testing::Test {
 protected:
  EngineWait() {
    TestPlace::fromEnvironment().tellEngine("wait");
    engine = engines.create("MapInfo.runtime");
    windows::setTopmost(selector(), true, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }

  [[nodiscard]] HWND working() const { return program.window(program.form); }
  [[nodiscard]] HWND selector() const { return program.window(program.selector); }

  // A call of the program's that the engine answers with a box, until `meanwhile` has returned on another thread. Gives
  // the number of the call's failure.
  int callWithBox(const std::function<void()>& meanwhile) {
    EXPECT_TRUE(orders.give({"box", "1"}));
    std::jthread other([&] {
      EXPECT_TRUE(becomesTrue([] { return engineBox() != nullptr; }));
      meanwhile();
    });
    int failed = 0;
    program.calls.run([&] {
      try {
        EXPECT_EQ(engine->eval("1+1"), platform::Variant("2"));
      } catch (const Failure& failure) {
        failed = failure.number();
      }
    });
    return failed;
  }

  windows::OleThread ole;
  Program program{Program::First::selector};
  windows::BusyEngine busyEngine{program.host};
  windows::OleEngines oleEngines;
  windows::WaitedEngines engines{oleEngines, program.host.waitingWindows()};
  EngineOrders orders{[this] {
    program.settle();
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }};
  std::shared_ptr<platform::MapEngine> engine;
};

TEST_F(EngineWait, WindowsAlwaysInFrontStepAsideAndComeBack) {
  bool steppedAside = false;
  const int failed = callWithBox([&] {
    steppedAside = becomesTrue([this] { return !windows::isTopmost(selector()); });
    pressOk(engineBox());
  });
  EXPECT_EQ(failed, 0);
  EXPECT_TRUE(steppedAside);
  EXPECT_TRUE(windows::isTopmost(selector()));
}

TEST_F(EngineWait, AWindowThatAKilledEngineHasDisabledTakesInputAgain) {
  const DWORD process = processOf(engineListening());
  const int failed = callWithBox([&] {
    EnableWindow(working(), FALSE);
    endProcess(process);
  });
  EXPECT_NE(failed, 0);
  EXPECT_TRUE(IsWindowEnabled(working()));
}

}  // namespace
}  // namespace wintest

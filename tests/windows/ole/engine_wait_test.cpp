#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>

#include "hosts/windows/com/asking_window.h"
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

constexpr const char* kWorkspace = R"(\Tablas\Tematicos\2000\Hombres\Veldoria\Provincias\Tasa bruta (x100.000).wor)";

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
    place.tellEngine("wait");
    engine = engines.create("MapInfo.runtime");
    windows::setTopmost(selector(), true, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }

  [[nodiscard]] HWND working() const { return program.window(program.form); }
  [[nodiscard]] HWND selector() const { return program.window(program.selector); }

  // The legend of a map, in front of the working window; null where there is none.
  [[nodiscard]] HWND openLegend() {
    const auto handle = [](HWND window) { return std::to_string(reinterpret_cast<LONG_PTR>(window)); };
    engine->run("set application window " + handle(program.window(program.form.picture)));
    engine->run("run application \"" + place.app + kWorkspace + "\"");
    engine->run("set window legend parent " + handle(working()));
    engine->run("open window legend");
    return FindWindowW(nullptr, L"Leyenda");
  }

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

  TestPlace place = TestPlace::fromEnvironment();
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

// The legend lies in front of the working window, and rises with it when the user clicks there.
TEST_F(EngineWait, TheBoxIsWhatAsksAndNotALegendAboveIt) {
  const HWND legend = openLegend();
  ASSERT_NE(legend, nullptr);
  ASSERT_EQ(GetWindow(legend, GW_OWNER), working());
  HWND box = nullptr;
  HWND asking = nullptr;
  const int failed = callWithBox([&] {
    box = engineBox();
    SetWindowPos(legend, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_TRUE(becomesTrue([box] { return IsWindowVisible(box) != FALSE; }));
    asking = windows::askingWindow(GetWindowThreadProcessId(box, nullptr));
    pressOk(box);
  });
  EXPECT_EQ(failed, 0);
  EXPECT_NE(box, nullptr);
  EXPECT_EQ(asking, box);
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

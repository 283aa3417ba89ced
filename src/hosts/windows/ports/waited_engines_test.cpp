#include "hosts/windows/ports/waited_engines.h"

#include <gtest/gtest.h>

#include <functional>

#include "hosts/windows/test_program.h"
#include "hosts/windows/win32/z_order.h"
#include "text/failure.h"

namespace windows {
namespace {

class Engine : public platform::MapEngine {
 public:
  explicit Engine(std::function<void()>& work) : work_(work) {}
  void run(const std::string&) override {
    work_();
    if (callback_ != nullptr) callback_->invoke("info", "MI:1,2");
  }
  platform::Variant eval(const std::string&) override {
    work_();
    return "T";
  }
  void setCallback(std::shared_ptr<platform::CallbackObject> callback) override { callback_ = std::move(callback); }

 private:
  std::function<void()>& work_;
  std::shared_ptr<platform::CallbackObject> callback_;
};

class Engines : public platform::MapEngines {
 public:
  std::shared_ptr<platform::MapEngine> create(const std::string&) override {
    work();
    return std::make_shared<Engine>(work);
  }
  std::function<void()> work = [] {};
};

class Callback : public platform::CallbackObject {
 public:
  [[nodiscard]] std::string className() const override { return "MICallback"; }
  bool invoke(const std::string& method, const std::string& message) override {
    heard = method + " " + message;
    if (whenCalled) whenCalled();
    return true;
  }
  std::string heard;
  std::function<void()> whenCalled;
};

class Waited : public ::testing::Test {
 protected:
  Waited() { setTopmost(selector(), true, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE); }

  [[nodiscard]] HWND working() const { return program.window(program.form); }
  [[nodiscard]] HWND selector() const { return program.window(program.selector); }
  // What a wait does to the program's windows, and a box of the engine's.
  void keepWaiting() {
    program.host.waitingWindows().stepAside();
    EnableWindow(working(), FALSE);
  }
  // A call that ends so; what comes of it is the failure's number.
  int callThatFails(const Failure& failure) {
    engines.work = [this, failure] {
      keepWaiting();
      throw failure;
    };
    try {
      engine->run("set map zoom entire");
    } catch (const Failure& caught) {
      return caught.number();
    }
    return 0;
  }

  testing::Program program{testing::Program::First::selector};
  Engines engines;
  WaitedEngines waited{engines, program.host.waitingWindows()};
  std::shared_ptr<platform::MapEngine> engine = waited.create("MapInfo.runtime");
};

TEST_F(Waited, PutsTheWindowsBackAfterEveryCall) {
  engines.work = [this] {
    program.host.waitingWindows().stepAside();
    EXPECT_FALSE(isTopmost(selector()));
  };
  engine->run("set map zoom entire");
  EXPECT_TRUE(isTopmost(selector()));
  EXPECT_EQ(engine->eval("1=1"), platform::Variant("T"));
  EXPECT_TRUE(isTopmost(selector()));
  (void)waited.create("MapInfo.runtime");
  EXPECT_TRUE(isTopmost(selector()));
}

TEST_F(Waited, PutsTheWindowsBackBeforeTheProgramIsCalled) {
  const auto callback = std::make_shared<Callback>();
  bool wasBack = false;
  callback->whenCalled = [&] { wasBack = isTopmost(selector()); };
  engine->setCallback(callback);
  engines.work = [this] { program.host.waitingWindows().stepAside(); };
  engine->run("run menu command 304");
  EXPECT_EQ(callback->heard, "info MI:1,2");
  EXPECT_TRUE(wasBack);
}

TEST_F(Waited, EnablesWhatAnEngineThatIsGoneHasDisabled) {
  constexpr int kUnavailable = 462;
  constexpr int kDiedInTheCall = -2147023170;
  for (const int number : {kUnavailable, kDiedInTheCall}) {
    EXPECT_EQ(callThatFails(Failure(number, "")), number);
    EXPECT_TRUE(IsWindowEnabled(working())) << number;
    EXPECT_TRUE(isTopmost(selector())) << number;
  }
}

TEST_F(Waited, LeavesWhatAnEngineThatAnswersHasDisabled) {
  EXPECT_EQ(callThatFails(failures::engineRejected("no")), failures::kEngineRejected);
  EXPECT_FALSE(IsWindowEnabled(working()));
  EXPECT_TRUE(isTopmost(selector()));
}

TEST_F(Waited, EnablesWhatAnEngineThatIsLetGoOfHasDisabled) {
  keepWaiting();
  engine.reset();
  EXPECT_TRUE(IsWindowEnabled(working()));
}

}  // namespace
}  // namespace windows

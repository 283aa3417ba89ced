#include "hosts/screen/program_calls.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/programs.h"
#include "text/failure.h"

namespace screen {
namespace {

class Calls : public ::testing::Test {
 protected:
  void SetUp() override {
    calls.failed = [this](const std::string& description) {
      told.push_back(description);
      wasBusy = calls.isBusy();
    };
  }

  using Words = std::vector<std::string>;
  ProgramCalls calls;
  Words told;
  bool wasBusy = false;
};

TEST_F(Calls, TellEveryFailureThatLeavesAHandler) {
  calls.run([] { throw failures::noObject(); });
  calls.run([] { throw std::runtime_error("otra cosa"); });
  calls.run([] { throw 1; });
  EXPECT_EQ(told, (Words{failures::noObject().description(), "otra cosa", "Error desconocido."}));
  EXPECT_FALSE(calls.isBusy());
  EXPECT_FALSE(calls.hasEnded());
}

TEST_F(Calls, TellWhatFailsOutsideThemAndLetNothingElseInMeanwhile) {
  calls.guard([] { throw failures::noObject(); });
  EXPECT_EQ(told, (Words{failures::noObject().description()}));
  EXPECT_TRUE(wasBusy);
  EXPECT_FALSE(calls.isBusy());
}

TEST_F(Calls, TellTheSameWordsOfWhatFailsOutsideThemOnce) {
  for (int i = 0; i < 3; ++i) {
    calls.guard([] { throw std::runtime_error("no se puede pintar"); });
    calls.guard([] { throw 1; });
  }
  EXPECT_EQ(told, (Words{"no se puede pintar", "Error desconocido."}));
}

// A window that fails to be painted is painted again while its failure is told.
TEST_F(Calls, TellOneFailureWhileAnotherIsTold) {
  const auto paint = [this] { calls.guard([] { throw std::runtime_error("no se puede pintar"); }); };
  calls.failed = [&](const std::string& description) {
    told.push_back(description);
    paint();
  };
  paint();
  EXPECT_EQ(told, Words{"no se puede pintar"});
}

TEST_F(Calls, GoOnWhereAFailureCannotBeTold) {
  calls.failed = [](const std::string&) { throw std::bad_alloc(); };
  calls.guard([] { throw std::runtime_error("sin memoria"); });
  calls.run([] { throw std::runtime_error("otra vez"); });
  EXPECT_FALSE(calls.isBusy());
}

TEST_F(Calls, TellNothingOnceTheProgramHasEnded) {
  calls.run([] { throw platform::ProgramEnd{}; });
  calls.guard([] { throw std::runtime_error("tarde"); });
  EXPECT_EQ(told, Words{});
}

}  // namespace
}  // namespace screen

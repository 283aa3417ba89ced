#include "hosts/screen/answered_engines.h"

#include <gtest/gtest.h>

#include "platform/programs.h"
#include "text/failure.h"

namespace screen {
namespace {

class Engine : public platform::MapEngine {
 public:
  void run(const std::string& statements) override {
    callback->invoke("Info", statements);
    if (fails) throw failures::noObject();
  }
  platform::Variant eval(const std::string& /*expression*/) override { return {}; }
  void setCallback(std::shared_ptr<platform::CallbackObject> object) override { callback = std::move(object); }

  std::shared_ptr<platform::CallbackObject> callback;
  bool fails = false;
};

class OneEngine : public platform::MapEngines {
 public:
  std::shared_ptr<platform::MapEngine> create(const std::string& programId) override {
    return programId.empty() ? nullptr : engine;
  }

  std::shared_ptr<Engine> engine = std::make_shared<Engine>();
};

class Callback : public platform::CallbackObject {
 public:
  explicit Callback(const ProgramCalls& calls) : calls_(calls) {}
  std::string className() const override { return "MICallback"; }
  bool invoke(const std::string& method, const std::string& message) override {
    wasInside = calls_.isBusy();
    heard = message;
    return method == "Info";
  }

  bool wasInside = false;
  std::string heard;

 private:
  const ProgramCalls& calls_;
};

TEST(AnsweredEngines, CallBackThroughTheProgramsDoor) {
  ProgramCalls calls;
  int returned = 0;
  calls.returned = [&] { ++returned; };
  OneEngine inner;
  AnsweredEngines engines(inner, calls);
  const auto engine = engines.create("MapInfo.runtime");
  const auto callback = std::make_shared<Callback>(calls);
  engine->setCallback(callback);

  engine->run("MI:1,2");
  EXPECT_TRUE(callback->wasInside);
  EXPECT_EQ(callback->heard, "MI:1,2");
  EXPECT_EQ(returned, 1);
  EXPECT_EQ(inner.engine->callback->className(), "MICallback");
  EXPECT_FALSE(inner.engine->callback->invoke("Otro", ""));

  engine->setCallback(nullptr);
  EXPECT_EQ(inner.engine->callback, nullptr);
}

class EndedProgram : public ::testing::TestWithParam<bool> {};

TEST_P(EndedProgram, EndsTheCallTooWhateverItCameTo) {
  class EndingCallback : public Callback {
   public:
    using Callback::Callback;
    bool invoke(const std::string& /*method*/, const std::string& /*message*/) override {
      throw platform::ProgramEnd{};
    }
  };
  ProgramCalls calls;
  OneEngine inner;
  inner.engine->fails = GetParam();
  AnsweredEngines engines(inner, calls);
  const auto engine = engines.create("MapInfo.runtime");
  engine->setCallback(std::make_shared<EndingCallback>(calls));

  bool wentOn = false;
  calls.run([&] {
    try {
      engine->run("MI:1,2");
    } catch (const Failure&) {
      wentOn = true;
    }
    wentOn = true;
  });
  EXPECT_TRUE(calls.hasEnded());
  EXPECT_FALSE(wentOn);
}

INSTANTIATE_TEST_SUITE_P(AnsweredEngines, EndedProgram, ::testing::Bool());

TEST(AnsweredEngines, PassOnThatThereIsNone) {
  ProgramCalls calls;
  OneEngine inner;
  EXPECT_EQ(AnsweredEngines(inner, calls).create(""), nullptr);
}

}  // namespace
}  // namespace screen

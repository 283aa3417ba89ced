#include "hosts/screen/answered_engines.h"

#include <utility>

#include "platform/programs.h"
#include "text/failure.h"

namespace screen {
namespace {

class AnsweringCallback : public platform::CallbackObject {
 public:
  AnsweringCallback(std::shared_ptr<platform::CallbackObject> inner, ProgramCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}

  [[nodiscard]] std::string className() const override { return inner_->className(); }
  [[nodiscard]] std::vector<std::string> methods() const override { return inner_->methods(); }

  bool invoke(const std::string& method, const std::string& message) override {
    bool known = true;
    calls_.run([&] { known = inner_->invoke(method, message); });
    return known;
  }

 private:
  std::shared_ptr<platform::CallbackObject> inner_;
  ProgramCalls& calls_;
};

class AnsweredEngine : public platform::MapEngine {
 public:
  AnsweredEngine(std::shared_ptr<platform::MapEngine> inner, ProgramCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}

  void run(const std::string& statements) override {
    answered([&] { inner_->run(statements); });
  }
  [[nodiscard]] platform::Variant eval(const std::string& expression) override {
    platform::Variant result;
    answered([&] { result = inner_->eval(expression); });
    return result;
  }
  void setCallback(std::shared_ptr<platform::CallbackObject> callback) override {
    if (callback != nullptr) callback = std::make_shared<AnsweringCallback>(std::move(callback), calls_);
    answered([&] { inner_->setCallback(std::move(callback)); });
  }

 private:
  // The program may have ended in a callback during the call; then it ends in the caller too, whatever else the call
  // came to.
  template <typename Call>
  void answered(const Call& call) const {
    try {
      call();
    } catch (const Failure&) {
      if (!calls_.hasEnded()) throw;
    }
    if (calls_.hasEnded()) throw platform::ProgramEnd{};
  }

  std::shared_ptr<platform::MapEngine> inner_;
  ProgramCalls& calls_;
};

}  // namespace

std::shared_ptr<platform::MapEngine> AnsweredEngines::create(const std::string& programId) {
  std::shared_ptr<platform::MapEngine> engine = engines_.create(programId);
  if (engine == nullptr) return nullptr;
  return std::make_shared<AnsweredEngine>(std::move(engine), calls_);
}

}  // namespace screen

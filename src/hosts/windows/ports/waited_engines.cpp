#include "hosts/windows/ports/waited_engines.h"

#include <utility>

#include "hosts/windows/com/ole_failure.h"

namespace windows {
namespace {

// What a call to the engine gives; when it is over, the windows are as they were.
template <class Call>
auto waited(WaitingWindows& windows, const Call& call) {
  struct Wait {
    WaitingWindows& windows;
    ~Wait() { windows.comeBack(); }
  };
  const Wait wait{windows};
  try {
    return call();
  } catch (const Failure& failure) {
    if (saysItIsGone(failure.number())) windows.takeInput();
    throw;
  }
}

class WaitedCallback : public platform::CallbackObject {
 public:
  WaitedCallback(std::shared_ptr<platform::CallbackObject> inner, WaitingWindows& windows)
      : inner_(std::move(inner)), windows_(windows) {}

  [[nodiscard]] std::string className() const override { return inner_->className(); }
  [[nodiscard]] std::vector<std::string> methods() const override { return inner_->methods(); }
  bool invoke(const std::string& method, const std::string& message) override {
    windows_.comeBack();
    return inner_->invoke(method, message);
  }

 private:
  std::shared_ptr<platform::CallbackObject> inner_;
  WaitingWindows& windows_;
};

class WaitedEngine : public platform::MapEngine {
 public:
  WaitedEngine(std::shared_ptr<platform::MapEngine> inner, WaitingWindows& windows)
      : inner_(std::move(inner)), windows_(windows) {}
  ~WaitedEngine() override {
    waited(windows_, [this] { inner_.reset(); });
    windows_.takeInput();
  }
  WaitedEngine(const WaitedEngine&) = delete;
  WaitedEngine& operator=(const WaitedEngine&) = delete;

  void run(const std::string& statements) override {
    waited(windows_, [&] { inner_->run(statements); });
  }
  [[nodiscard]] platform::Variant eval(const std::string& expression) override {
    return waited(windows_, [&] { return inner_->eval(expression); });
  }
  void setCallback(std::shared_ptr<platform::CallbackObject> callback) override {
    if (callback != nullptr) callback = std::make_shared<WaitedCallback>(std::move(callback), windows_);
    waited(windows_, [&] { inner_->setCallback(std::move(callback)); });
  }

 private:
  std::shared_ptr<platform::MapEngine> inner_;
  WaitingWindows& windows_;
};

}  // namespace

std::shared_ptr<platform::MapEngine> WaitedEngines::create(const std::string& programId) {
  std::shared_ptr<platform::MapEngine> engine = waited(windows_, [&] { return engines_.create(programId); });
  if (engine == nullptr) return nullptr;
  return std::make_shared<WaitedEngine>(std::move(engine), windows_);
}

}  // namespace windows

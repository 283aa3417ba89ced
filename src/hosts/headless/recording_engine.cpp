#include "hosts/headless/recording_engine.h"

#include <algorithm>

#include "text/failure.h"
#include "text/utf8.h"

namespace headless {
namespace {

// Passes calls on to the program's callback object and writes them.
class RecordingCallback : public platform::CallbackObject {
 public:
  RecordingCallback(std::shared_ptr<platform::CallbackObject> inner, Transcript& transcript)
      : inner_(std::move(inner)), transcript_(transcript) {}

  [[nodiscard]] std::string className() const override { return inner_->className(); }
  [[nodiscard]] std::vector<std::string> methods() const override { return inner_->methods(); }
  bool invoke(const std::string& method, const std::string& message) override {
    transcript_.write("call " + method + " " + message);
    return inner_->invoke(method, message);
  }

 private:
  std::shared_ptr<platform::CallbackObject> inner_;
  Transcript& transcript_;
};

bool isWholeNumber(const std::string& s) {
  return !s.empty() && s.size() < 18 && std::ranges::all_of(s, [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

RecordingEngine::RecordingEngine(std::shared_ptr<platform::MapEngine> inner, Recorder& recorder, int number)
    : inner_(std::move(inner)), recorder_(recorder), number_(number) {}

RecordingEngine::~RecordingEngine() { recorder_.transcript().write("release #" + std::to_string(number_)); }

void RecordingEngine::run(const std::string& statements) {
  recorder_.perform(
      "do " + statements, [&] { inner_->run(statements); }, Recorder::Call::engine);
}

platform::Variant RecordingEngine::eval(const std::string& expression) {
  return recorder_.ask(
      "eval " + expression, [&] { return inner_->eval(expression); },
      [&](const platform::Variant& result) {
        learnNames(expression, result);
        return result.text();
      },
      Recorder::Call::engine);
}

void RecordingEngine::setCallback(std::shared_ptr<platform::CallbackObject> callback) {
  recorder_.perform(
      "callback-set " + callback->className(),
      [&] {
        auto recording = std::make_shared<RecordingCallback>(std::move(callback), recorder_.transcript());
        inner_->setCallback(recording);
        callback_ = std::move(recording);
      },
      Recorder::Call::engine);
}

bool RecordingEngine::callBack(const std::string& method, const std::string& message) {
  const auto callback = callback_;  // the method may replace it
  return callback != nullptr && callback->invoke(method, message);
}

// The program asks the engine for its map window's number and handle; from then on they have names.
void RecordingEngine::learnNames(const std::string& expression, const platform::Variant& result) {
  std::string asked = text::lower(expression);
  std::erase(asked, ' ');
  const std::string answer = result.text();
  if (!isWholeNumber(answer) || answer == "0") return;
  if (asked == "windowid(1)" || asked == "frontwindow()") recorder_.transcript().nameMap(answer);
  const bool asksForHandle = asked.starts_with("windowinfo(") && asked.ends_with(",12)");
  if (asksForHandle) recorder_.transcript().nameHandle(std::stoll(answer), "map");
}

std::shared_ptr<platform::MapEngine> RecordingEngines::create(const std::string& programId) {
  std::shared_ptr<RecordingEngine> engine;
  const int number = count_ + 1;
  recorder_.perform(
      "create " + programId + " #" + std::to_string(number),
      [&] {
        auto inner = inner_.create(programId);
        if (inner == nullptr) return;
        engine = std::make_shared<RecordingEngine>(std::move(inner), recorder_, number);
        count_ = number;
      },
      Recorder::Call::engine);
  if (engine != nullptr) {
    recorder_.transcript().nameMap("");
    current_ = engine;
  }
  return engine;
}

}  // namespace headless

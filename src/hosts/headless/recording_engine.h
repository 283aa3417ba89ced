#pragma once

#include <memory>
#include <string>

#include "hosts/headless/recorder.h"
#include "platform/map_engine.h"

namespace headless {

// An engine whose calls are written: "do", "eval", "callback-set", "call" when it calls back, "release" at its end.
class RecordingEngine : public platform::MapEngine {
 public:
  RecordingEngine(std::shared_ptr<platform::MapEngine> inner, Recorder& recorder, int number);
  ~RecordingEngine() override;
  RecordingEngine(const RecordingEngine&) = delete;
  RecordingEngine& operator=(const RecordingEngine&) = delete;

  void run(const std::string& statements) override;
  [[nodiscard]] platform::Variant eval(const std::string& expression) override;
  void setCallback(std::shared_ptr<platform::CallbackObject> callback) override;

  // Calls the callback object back, as the engine does. False when there is none, or none of its methods has that name.
  bool callBack(const std::string& method, const std::string& message);

 private:
  void learnNames(const std::string& expression, const platform::Variant& result);

  std::shared_ptr<platform::MapEngine> inner_;
  std::shared_ptr<platform::CallbackObject> callback_;
  Recorder& recorder_;
  int number_;
};

// Creates engines through another service and writes "create" for each; engines that came to be are counted from 1.
class RecordingEngines : public platform::MapEngines {
 public:
  RecordingEngines(platform::MapEngines& inner, Recorder& recorder) : inner_(inner), recorder_(recorder) {}

  [[nodiscard]] std::shared_ptr<platform::MapEngine> create(const std::string& programId) override;
  // The engine created last that is still alive, or null.
  [[nodiscard]] std::shared_ptr<RecordingEngine> current() const { return current_.lock(); }

 private:
  platform::MapEngines& inner_;
  Recorder& recorder_;
  std::weak_ptr<RecordingEngine> current_;
  int count_ = 0;
};

}  // namespace headless

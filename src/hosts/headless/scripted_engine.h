#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/headless/engine_host.h"

namespace headless {

// What scripted engines answer. Shared by all engines of a run.
class EngineScript {
 public:
  // Adds the lines of an engine file: "eval PATTERN => TEXT", or "once eval PATTERN => TEXT", which is used up when it
  // matches; "#" begins a comment line. Fails with std::invalid_argument that names the line.
  void read(std::string_view file);

  // The text of the first line whose pattern the expression matches ("*" is a wildcard, case does not count), or "".
  [[nodiscard]] std::string answer(const std::string& expression);

 private:
  struct Rule {
    std::string pattern;  // lower case
    std::string text;
    bool once = false;
  };
  std::vector<Rule> rules_;
};

// An engine that accepts every statement and answers from a script. It keeps the program's tool buttons, so that a
// click on its map calls back.
class ScriptedEngine : public platform::MapEngine {
 public:
  explicit ScriptedEngine(std::shared_ptr<EngineScript> script) : script_(std::move(script)) {}

  void run(const std::string& statements) override;
  [[nodiscard]] platform::Variant eval(const std::string& expression) override { return script_->answer(expression); }
  void setCallback(std::shared_ptr<platform::CallbackObject> callback) override { callback_ = std::move(callback); }

  // A click with the tool chosen last. Nothing when that is no button of the program's own.
  void click(const std::string& x, const std::string& y);

 private:
  struct ToolButton {
    std::string id;
    std::string method;
  };

  std::shared_ptr<EngineScript> script_;
  std::shared_ptr<platform::CallbackObject> callback_;
  std::vector<ToolButton> buttons_;
  std::string tool_;  // the id of a button, or "" for a standard tool
};

// Creates scripted engines for "MapInfo.runtime"; another program id fails with 429.
class ScriptedEngines : public EngineHost, public platform::MapEngines {
 public:
  explicit ScriptedEngines(std::string_view engineFile);

  [[nodiscard]] platform::MapEngines& engines() override { return *this; }
  bool clickMap(const std::string& x, const std::string& y) override;
  [[nodiscard]] std::shared_ptr<platform::MapEngine> create(const std::string& programId) override;

 private:
  std::shared_ptr<EngineScript> script_ = std::make_shared<EngineScript>();
  std::weak_ptr<ScriptedEngine> current_;
};

}  // namespace headless

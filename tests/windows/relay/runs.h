#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "hosts/headless/scripted_engine.h"

namespace relay {

// A run of the program: where its study is, as the program writes it and as this machine does, and the file that its
// engines answer from, where they are scripted.
struct Run {
  // Reads "NAME|PROGRAM'S FOLDER|MACHINE'S FOLDER|ENGINE FILE"; the last is empty for the embedded engine. Fails with
  // std::invalid_argument.
  explicit Run(const std::string& text);

  // A text of the program with the study's folder as this machine writes it, and the other way round.
  [[nodiscard]] std::string toMachine(const std::string& s) const;
  [[nodiscard]] std::string toProgram(const std::string& s) const;

  std::string programFolder;
  std::filesystem::path machineFolder;
  std::unique_ptr<headless::ScriptedEngines> script;  // null with the embedded engine
};

// All runs so far. What a run's engine file has used up stays so for its later engines.
class Runs {
 public:
  Run& at(const std::string& text);

 private:
  std::map<std::string, Run> runs_;
};

}  // namespace relay

#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hosts/headless/headless_world.h"
#include "hosts/headless/replay.h"

// A scenario: a replay script NAME.replay with the transcript that it must give, NAME.golden. It runs on a copy of the
// tiny study; NAME.app, where there is one, is copied over it. With NAME.engine the map engine is scripted, else it is
// the embedded one; NAME.registry says what is installed.
namespace scenarios {

using Lines = std::vector<std::string>;

// The names of all scenarios, sorted.
[[nodiscard]] std::vector<std::string> names();

// Where a scenario keeps the file of that ending, which need not exist.
[[nodiscard]] std::filesystem::path file(const std::string& name, const std::string& ending);

// The file's text. Throws when it cannot be read.
[[nodiscard]] std::string contentsOf(const std::filesystem::path& file);
[[nodiscard]] Lines linesOf(const std::string& text);

// A script's line, as the transcript shows it, and what it did.
struct Block {
  std::string script;
  Lines lines;
};
[[nodiscard]] std::vector<Block> blocksOf(const Lines& transcript);

// The folder of the scenario's study: the tiny study itself, or a copy, gone with the object, where the scenario
// changes it.
class Study {
 public:
  explicit Study(const std::string& name);
  // A copy of the tiny study that belongs to no scenario.
  Study();
  ~Study();
  Study(const Study&) = delete;
  Study& operator=(const Study&) = delete;
  [[nodiscard]] std::string folder() const;

 private:
  void copyInto(const std::string& name);

  std::filesystem::path folder_;
  bool isCopy_ = false;
};

// While it lives the folder given is the current one, into which a table is saved that is given no path.
class InFolder {
 public:
  explicit InFolder(const std::string& folder);
  ~InFolder();
  InFolder(const InFolder&) = delete;
  InFolder& operator=(const InFolder&) = delete;

 private:
  std::filesystem::path before_;
};

// One run of a scenario's program: a replay with the engine and the registry that belong to it. `study` outlives it.
class Run {
 public:
  Run(const std::string& name, const Study& study);
  // A program with the embedded engine on the study in this folder.
  explicit Run(const std::string& studyFolder);
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  [[nodiscard]] headless::Replay& replay() { return *replay_; }
  // What was written so far.
  [[nodiscard]] const Lines& transcript() const { return transcript_; }

 private:
  void start(const std::string& folder, const std::optional<std::string>& registry);

  Lines transcript_;
  std::unique_ptr<headless::EngineHost> engines_;
  std::unique_ptr<headless::HeadlessWorld> world_;
  std::unique_ptr<headless::Replay> replay_;
};

}  // namespace scenarios

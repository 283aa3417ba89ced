#pragma once

#include <memory>
#include <string>

#include "counted_engines.h"
#include "hosts/headless/headless_world.h"
#include "hosts/headless/replay.h"
#include "judge.h"
#include "scenario.h"
#include "shrink.h"

namespace monkey {

// One run of the program on a study, from its start to its end, judged after each action.
class Life {
 public:
  // What it exports goes into the folder `salidas` of the study, which is emptied first and is the current one as long
  // as this lives.
  explicit Life(const std::string& studyFolder);
  ~Life();
  Life(const Life&) = delete;
  Life& operator=(const Life&) = delete;

  // Does one line of a replay script. False when it cannot be done in this state: then it is as if it had not been
  // there.
  bool act(const std::string& line);
  // Closes the windows that are still open, and with the last one the program. After it nothing can be done.
  void end();

  // What is wrong since the last action that was done, as "RULE: what"; "" when nothing is.
  [[nodiscard]] const std::string& complaint() const { return complaint_; }
  // The lines done so far.
  [[nodiscard]] const Script& script() const { return script_; }
  // What the last line that was done has done, as the transcript tells it.
  [[nodiscard]] const std::vector<std::string>& effects() const { return effects_; }
  [[nodiscard]] bool isOver() const { return replay_ == nullptr || replay_->hasEnded(); }
  // Null before the start and after the end.
  [[nodiscard]] atlas::Atlas* program() { return replay_ == nullptr ? nullptr : replay_->program(); }

 private:
  void judge(const std::string& line);

  scenarios::InFolder here_;
  CountedEngines engines_;
  headless::HeadlessWorld world_;
  std::unique_ptr<headless::Replay> replay_;
  Judge judge_;
  Script script_;
  std::vector<std::string> effects_;
  std::string complaint_;
};

// The complaint about a script that is run from its start, passing over what cannot be done, and closed at its end.
[[nodiscard]] std::string complaintAbout(const Script& script, const std::string& studyFolder);

// The part of a complaint that names its rule.
[[nodiscard]] std::string ruleOf(const std::string& complaint);

}  // namespace monkey

#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "atlas/atlas.h"
#include "hosts/headless/recorder.h"
#include "hosts/headless/recording_listener.h"
#include "hosts/headless/recording_ports.h"
#include "hosts/headless/script_line.h"
#include "hosts/headless/world.h"

namespace headless {

// A failure that no handler of the program trapped.
class UntrappedFailure : public ScriptError {
 public:
  using ScriptError::ScriptError;
};

// Runs the whole program from a script of what a user does, and writes one line per effect.
class Replay {
 public:
  // `world` outlives the replay. Kinds of lines that are `quiet` are left out.
  Replay(World& world, Transcript::Sink sink, const std::set<std::string>& quiet = {});
  ~Replay();
  Replay(const Replay&) = delete;
  Replay& operator=(const Replay&) = delete;

  // Runs a script to its end. Throws ScriptError, which names the line, for what is wrong with it.
  void run(std::string_view script);
  // Runs one line of a script that is neither blank nor a comment. Throws ScriptError; UntrappedFailure when a failure
  // left the program.
  void runLine(std::string_view text);

  // Lets calls fail by number without a script line.
  [[nodiscard]] Faults& faults() { return faults_; }
  // The program, from its start to the end of its last window; null before and after.
  [[nodiscard]] atlas::Atlas* program() { return atlas_.get(); }
  // Whether it was started and is over.
  [[nodiscard]] bool hasEnded() const { return ended_; }

 private:
  // A verb of the script language. Preparing ones may stand before "start"; the others need the program running.
  struct Verb {
    std::string_view name;
    bool prepares;
    void (*action)(Replay& replay, ScriptLine& line);
  };
  [[nodiscard]] static const Verb* findVerb(const std::string& name);

  void act(const Verb& verb, ScriptLine& line);
  void noticeEnd();
  void letGo();
  // The call that the rest of the line names by its number is to fail.
  void failCall(CallKind kind, ScriptLine& line);

  [[nodiscard]] std::string path(const std::string& written) const;
  [[nodiscard]] forms::Form& form(const std::string& name) const;
  [[nodiscard]] forms::Control& control(ScriptLine& line) const;
  [[nodiscard]] forms::Control& indexedControl(ScriptLine& line) const;
  [[nodiscard]] forms::Control* findControl(const std::string& name) const;
  [[nodiscard]] forms::Form* findForm(const std::string& name) const;

  static constexpr const char* kMainForm = "frmPrincipal";

  World& world_;
  std::string applicationFolder_;
  Transcript transcript_;
  Faults faults_;
  Recorder recorder_{transcript_, faults_};
  RecordingListener recordingListener_;
  RecordingPorts ports_;
  std::unique_ptr<atlas::Atlas> atlas_;
  bool ended_ = false;
};

// The names by which --quiet knows the lines.
[[nodiscard]] const std::set<std::string>& lineKinds();

}  // namespace headless

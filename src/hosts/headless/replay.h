#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "atlas/atlas.h"
#include "hosts/headless/engine_host.h"
#include "hosts/headless/fake_programs.h"
#include "hosts/headless/fake_registry.h"
#include "hosts/headless/fake_windows.h"
#include "hosts/headless/headless_files.h"
#include "hosts/headless/headless_listener.h"
#include "hosts/headless/recorder.h"
#include "hosts/headless/recording_listener.h"
#include "hosts/headless/recording_ports.h"
#include "hosts/headless/script_line.h"
#include "hosts/headless/scripted_dialogs.h"
#include "hosts/headless/scripted_messages.h"

namespace headless {

// A failure that no handler of the program trapped.
class UntrappedFailure : public ScriptError {
 public:
  using ScriptError::ScriptError;
};

struct ReplayOptions {
  std::string applicationFolder;            // absolute, without a separator at its end
  std::optional<std::string> registryFile;  // its text; without one the engine and a PDF reader are installed
  std::set<std::string> quiet;              // kinds of lines that are left out
};

// Runs the whole program without a screen, from a script of what a user does, and writes one line per effect.
class Replay {
 public:
  // `engines` outlives the replay. Fails with std::invalid_argument when the registry file is wrong.
  Replay(const ReplayOptions& options, EngineHost& engines, Transcript::Sink sink);
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
  // The desktop that the program believes in: other programs' windows may be put on it.
  [[nodiscard]] FakeWindows& windows() { return windows_; }
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
  // The call that the rest of the line names by its number is to fail.
  void failCall(CallKind kind, ScriptLine& line);

  void installDefaults();
  [[nodiscard]] std::string path(const std::string& written) const;
  [[nodiscard]] forms::Form& form(const std::string& name) const;
  [[nodiscard]] forms::Control& control(ScriptLine& line) const;
  [[nodiscard]] forms::Control& indexedControl(ScriptLine& line) const;
  [[nodiscard]] forms::Control* findControl(const std::string& name) const;
  [[nodiscard]] forms::Form* findForm(const std::string& name) const;

  static constexpr const char* kMainForm = "frmPrincipal";

  std::string applicationFolder_;
  EngineHost& engineHost_;
  Transcript transcript_;
  Faults faults_;
  Recorder recorder_{transcript_, faults_};
  FakeWindows windows_;
  FakeRegistry registry_;
  HeadlessFiles files_;
  FakePrograms programs_;
  ScriptedMessages messages_;
  ScriptedDialogs dialogs_;
  HeadlessListener listener_{windows_};
  RecordingListener recordingListener_{listener_, recorder_};
  RecordingPorts ports_;
  std::unique_ptr<atlas::Atlas> atlas_;
  bool ended_ = false;
};

// The names by which --quiet knows the lines.
[[nodiscard]] const std::set<std::string>& lineKinds();

}  // namespace headless

#include "hosts/headless/replay.h"

#include <algorithm>
#include <stdexcept>

#include "hosts/headless/text_lines.h"
#include "text/failure.h"
#include "text/utf8.h"

namespace headless {
namespace {

constexpr std::string_view kApp = "<app>";

}  // namespace

Replay::Replay(World& world, Transcript::Sink sink, const std::set<std::string>& quiet)
    : world_(world),
      applicationFolder_(world.ports().applicationFolder),
      transcript_(std::move(sink), applicationFolder_),
      recordingListener_(world.screen(), recorder_),
      ports_(world.ports(), recorder_) {
  transcript_.hush(quiet);
}

Replay::~Replay() {
  transcript_.close();
  letGo();
}

// The engine goes first: its map may lie in a window of the program. What shows the program goes before it.
void Replay::letGo() {
  if (atlas_ != nullptr) atlas_->motormapa.reset();
  world_.closeAll();
  atlas_.reset();
}

void Replay::run(std::string_view script) {
  try {
    forEachTextLine(script, [this](std::string_view line) {
      try {
        runLine(line);
      } catch (const ScriptError& problem) {
        throw std::invalid_argument(problem.what());
      }
    });
  } catch (const std::invalid_argument& problem) {
    throw ScriptError(problem.what());
  }
}

void Replay::runLine(std::string_view text) {
  ScriptLine line(text);
  if (ended_) throw ScriptError("the program has ended");
  const Verb* verb = findVerb(line.verb());
  if (verb == nullptr) throw ScriptError("no such verb: " + line.verb());
  if (!verb->prepares && atlas_ == nullptr) throw ScriptError(line.verb() + ": the program has not been started");
  transcript_.write(">", "> " + std::string(text));
  act(*verb, line);
  noticeEnd();
}

// Nothing but the end of the program is to leave it.
void Replay::act(const Verb& verb, ScriptLine& line) {
  try {
    verb.action(*this, line);
  } catch (const platform::ProgramEnd&) {
    ended_ = true;
    transcript_.close();
  } catch (const Failure& failure) {
    throw UntrappedFailure("a failure left the program: " + std::to_string(failure.number()) + " " +
                           failure.description());
  }
}

// The program is over when none of its windows is left; what it still holds is released with it.
void Replay::noticeEnd() {
  if (ended_ || atlas_ == nullptr) return;
  const auto forms = atlas_->forms();
  if (std::ranges::any_of(forms, [](const forms::Form* form) { return form->isLoaded(); })) return;
  ended_ = true;
  letGo();
}

std::string Replay::path(const std::string& written) const {
  return written.starts_with(kApp) ? applicationFolder_ + written.substr(kApp.size()) : written;
}

forms::Form* Replay::findForm(const std::string& name) const {
  const auto forms = atlas_->forms();
  const auto found = std::ranges::find_if(
      forms, [&](const forms::Form* form) { return text::equalsIgnoringCase(form->name(), name); });
  return found == forms.end() ? nullptr : *found;
}

forms::Form& Replay::form(const std::string& name) const {
  forms::Form* form = findForm(name);
  if (form == nullptr) throw ScriptError("there is no form " + name + " yet");
  return *form;
}

// FORM, FORM.CONTROL, or a control of the main window, else of any other.
forms::Control* Replay::findControl(const std::string& name) const {
  if (const std::size_t dot = name.find('.'); dot != std::string::npos) {
    const forms::Form* form = findForm(name.substr(0, dot));
    return form == nullptr ? nullptr : form->find(name.substr(dot + 1));
  }
  if (forms::Form* form = findForm(name)) return form;
  if (const forms::Form* main = findForm(kMainForm)) {
    if (forms::Control* control = main->find(name)) return control;
  }
  for (const forms::Form* form : atlas_->forms()) {
    if (forms::Control* control = form->find(name)) return control;
  }
  return nullptr;
}

forms::Control& Replay::control(ScriptLine& line) const {
  const std::string& name = line.text("the control");
  forms::Control* control = findControl(name);
  if (control == nullptr) throw ScriptError("there is no control " + name + " yet");
  return *control;
}

forms::Control& Replay::indexedControl(ScriptLine& line) const {
  std::string name = line.text("the control");
  if (line.hasMore()) name.append("(").append(std::to_string(line.wholeNumber("the index"))).append(")");
  line.finish();
  forms::Control* control = findControl(name);
  if (control == nullptr) throw ScriptError("there is no control " + name + " yet");
  return *control;
}

const std::set<std::string>& lineKinds() {
  static const std::set<std::string> kinds{
      ">",        "do",         "eval",        "error", "create", "release", "callback-set", "call",
      "dir",      "regopen",    "regquery",    "shell", "copy",   "msgbox",  "form",         "zorder",
      "parent",   "findwindow", "closewindow", "set",   "add",    "node",    "nodeset",      "clear",
      "navigate", "help",       "savedialog",  "end",   "show",   "tree"};
  return kinds;
}

}  // namespace headless

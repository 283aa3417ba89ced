#include <algorithm>
#include <array>

#include "hosts/headless/choices.h"
#include "hosts/headless/control_report.h"
#include "hosts/headless/replay.h"

// The verbs of the script language, one entry each.
namespace headless {
namespace {

constexpr const char* kTree = "TreeView1";

platform::Button button(const std::string& name) {
  if (name == "ok") return platform::Button::ok;
  if (name == "yes") return platform::Button::yes;
  if (name == "no") return platform::Button::no;
  throw ScriptError("no button: " + name + " (ok, yes or no)");
}

CallKind callKind(const std::string& name) {
  if (name == "engine") return CallKind::engine;
  if (name == "machine") return CallKind::machine;
  if (name == "windows") return CallKind::windows;
  if (name == "dialogs") return CallKind::dialogs;
  throw ScriptError("no kind of call: " + name + " (engine, machine, windows or dialogs)");
}

}  // namespace

void Replay::failCall(CallKind kind, ScriptLine& line) {
  const int call = line.wholeNumber("the call");
  const int number = line.wholeNumber("the number");
  const std::string description = line.hasMore() ? line.text("the text") : "";
  line.finish();
  if (call < 1) throw ScriptError(line.verb() + ": calls are counted from 1");
  faults_.failCall(kind, call, failureNumbered(number, description));
}

const Replay::Verb* Replay::findVerb(const std::string& name) {
  static constexpr std::array kVerbs = std::to_array<Verb>({
      {"start", true,
       [](Replay& r, ScriptLine& line) {
         line.finish();
         if (r.atlas_ != nullptr) throw ScriptError("the program has been started already");
         r.atlas_ = std::make_unique<atlas::Atlas>(r.ports_.ports(), r.recordingListener_);
         r.world_.enter([&r] { r.atlas_->Main(); });
       }},
      {"tick", false,
       [](Replay& r, ScriptLine& line) {
         line.finish();
         for (forms::Form* form : r.atlas_->forms()) r.world_.hands().tick(*form);
       }},
      {"doubleclick", false,
       [](Replay& r, ScriptLine& line) {
         forms::Form& form = r.form(line.text("the form"));
         line.finish();
         r.world_.hands().doubleClick(form);
       }},
      {"close", false,
       [](Replay& r, ScriptLine& line) {
         forms::Form& form = r.form(line.hasMore() ? line.text("the form") : kMainForm);
         line.finish();
         r.world_.hands().close(form);
       }},
      {"resize", false,
       [](Replay& r, ScriptLine& line) {
         const double width = line.number("the width");
         const double height = line.number("the height");
         line.finish();
         r.world_.hands().resize(r.form(kMainForm), width, height);
       }},
      {"minimize", false,
       [](Replay& r, ScriptLine& line) {
         line.finish();
         r.world_.hands().minimize(r.form(kMainForm));
       }},
      {"restore", false,
       [](Replay& r, ScriptLine& line) {
         line.finish();
         r.world_.hands().restore(r.form(kMainForm));
       }},
      {"click", false, [](Replay& r, ScriptLine& line) { r.world_.hands().click(r.indexedControl(line)); }},
      {"select", false,
       [](Replay& r, ScriptLine& line) {
         forms::Control& control = r.control(line);
         const Word& what = line.word("the item");
         line.finish();
         r.world_.hands().pick(control, chosenIndex(control, what));
       }},
      {"focus", false,
       [](Replay& r, ScriptLine& line) {
         forms::Control& control = r.control(line);
         line.finish();
         r.world_.hands().enter(control);
       }},
      {"mouseup", false,
       [](Replay& r, ScriptLine& line) {
         forms::Control& control = r.control(line);
         line.finish();
         r.world_.hands().release(control);
       }},
      {"mousemove", false, [](Replay& r, ScriptLine& line) { r.world_.hands().pointAt(r.indexedControl(line)); }},
      {"type", false,
       [](Replay& r, ScriptLine& line) {
         forms::Control& control = r.control(line);
         const std::string& text = line.text("the text");
         line.finish();
         r.world_.hands().type(control, text);
       }},
      {"edit", false,
       [](Replay& r, ScriptLine& line) {
         forms::Control& control = r.control(line);
         const std::string& text = line.text("the text");
         line.finish();
         r.world_.hands().edit(control, text);
       }},
      {"mapclick", false,
       [](Replay& r, ScriptLine& line) {
         const std::string& x = line.text("x");
         const std::string& y = line.text("y");
         line.finish();
         if (!r.world_.clickMap(x, y)) throw ScriptError("there is no map to click on");
       }},
      {"callback", false,
       [](Replay& r, ScriptLine& line) {
         const std::string& method = line.text("the method");
         const std::string& message = line.text("the message");
         line.finish();
         const auto engine = r.ports_.engines().current();
         if (engine == nullptr) throw ScriptError("there is no engine to call back");
         if (!r.world_.callBack(*engine, method, message)) throw ScriptError("no callback method " + method);
       }},
      {"answer", true,
       [](Replay& r, ScriptLine& line) {
         r.world_.prepareAnswer(button(line.text("the button")));
         line.finish();
       }},
      {"savename", true,
       [](Replay& r, ScriptLine& line) {
         r.world_.prepareName(r.path(line.text("the name")));
         line.finish();
       }},
      {"savecancel", true,
       [](Replay& r, ScriptLine& line) {
         line.finish();
         r.world_.prepareCancel();
       }},
      {"locationname", true,
       [](Replay& r, ScriptLine& line) {
         r.world_.nameLocation(line.text("the name"));
         line.finish();
       }},
      {"file", true,
       [](Replay& r, ScriptLine& line) {
         r.world_.putFile(r.path(line.text("the path")));
         line.finish();
       }},
      {"nofile", true,
       [](Replay& r, ScriptLine& line) {
         r.world_.removeFile(r.path(line.text("the path")));
         line.finish();
       }},
      {"window", true,
       [](Replay& r, ScriptLine& line) {
         r.world_.openWindow(line.text("the title"));
         line.finish();
       }},
      {"fail", true,
       [](Replay& r, ScriptLine& line) {
         const std::string pattern = line.text("the pattern");
         const int number = line.wholeNumber("the number");
         const std::string description = line.hasMore() ? line.text("the text") : "";
         line.finish();
         r.faults_.failNext(pattern, failureNumbered(number, description));
       }},
      {"failat", true,
       [](Replay& r, ScriptLine& line) {
         r.failCall(CallKind::engine, line);
       }},
      {"failcall", true,
       [](Replay& r, ScriptLine& line) {
         const std::string& kind = line.text("the kind of call");
         r.failCall(callKind(kind), line);
       }},
      {"show", false,
       [](Replay& r, ScriptLine& line) {
         for (const std::string& text : propertyLines(r.indexedControl(line))) r.transcript_.write(text);
       }},
      {"tree", false,
       [](Replay& r, ScriptLine& line) {
         line.finish();
         const auto* tree = dynamic_cast<forms::TreeView*>(r.findControl(kTree));
         if (tree == nullptr) throw ScriptError("there is no tree yet");
         for (const std::string& text : treeLines(*tree)) r.transcript_.write("tree", text);
       }},
  });
  const auto found = std::ranges::find(kVerbs, name, &Verb::name);
  return found == kVerbs.end() ? nullptr : &*found;
}

}  // namespace headless

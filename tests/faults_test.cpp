#include "hosts/headless/faults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "aftermath.h"
#include "fault_rules.h"
#include "hosts/headless/text_lines.h"
#include "sample_study.h"
#include "scenario.h"
#include "text/failure.h"

// Each scenario is run again and again with one more call failing: the first, the second and so on to the last that
// goes to the map engine, then those that go to the registry, to files and to programs. The handler must do what its
// trap says, and the next one what it does in the state that it finds.
namespace {

using headless::CallKind;
using scenarios::Lines;

// Scenarios that let calls fail themselves are left out.
std::vector<std::string> undisturbed() {
  std::vector<std::string> result;
  for (const std::string& name : scenarios::names()) {
    const std::string script = scenarios::contentsOf(scenarios::file(name, ".replay"));
    if (script.find("\nfail") == std::string::npos && !script.starts_with("fail")) result.push_back(name);
  }
  return result;
}

// Runs the script to its end. What a line cannot do because of the fault (an item that was not listed, a map that is
// not there) is passed over; a failure that leaves the program is a test failure. Gives the lines that were not done.
std::set<std::string> runOn(headless::Replay& replay, const std::string& script) {
  std::set<std::string> notDone;
  headless::forEachTextLine(script, [&](std::string_view line) {
    try {
      replay.runLine(line);
    } catch (const headless::UntrappedFailure& failure) {
      ADD_FAILURE() << line << ": " << failure.what();
    } catch (const headless::ScriptError&) {
      notDone.insert("> " + std::string(line));
    }
  });
  return notDone;
}

Failure faultOf(CallKind kind) {
  if (kind == CallKind::engine) return failures::engineRejected(scenarios::kFaultText);
  return {scenarios::kMachineFault, scenarios::kFaultText};
}

// Lets the call of that number fail and judges what follows.
void expectRightReaction(scenarios::Run run, const std::string& script, const Lines& reference, CallKind kind,
                         int call) {
  run.replay().faults().failCall(kind, call, faultOf(kind));
  const std::set<std::string> notDone = runOn(run.replay(), script);
  const char* whose = kind == CallKind::engine ? "engine call " : "machine call ";
  EXPECT_EQ(scenarios::complaintAbout(run.transcript()), "") << whose << call;
  EXPECT_EQ(scenarios::complaintAboutNext(run.transcript(), reference, notDone), "") << whose << call << ", next line";
}

class Faults : public ::testing::TestWithParam<std::string> {};

TEST_P(Faults, EveryCallMayFail) {
  const std::string script = scenarios::contentsOf(scenarios::file(GetParam(), ".replay"));
  const scenarios::Study study(GetParam());
  scenarios::Run reference(GetParam(), study);
  reference.replay().run(script);
  for (const CallKind kind : {CallKind::engine, CallKind::machine}) {
    const int calls = reference.replay().faults().calls(kind);
    for (int call = 1; call <= calls; ++call) {
      expectRightReaction({GetParam(), study}, script, reference.transcript(), kind, call);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, Faults, ::testing::ValuesIn(undisturbed()),
                         [](const auto& scenario) { return scenario.param; });

// The numbers of the calls of a kind to try in a long transcript: the first, the second and the last with each text.
std::set<int> distinctCalls(const Lines& transcript, const std::vector<std::string_view>& beginnings) {
  std::map<std::string, std::vector<int>> byText;
  int number = 0;
  for (const std::string& line : transcript) {
    const auto begins = [&](std::string_view beginning) { return line.starts_with(beginning); };
    if (std::ranges::none_of(beginnings, begins)) continue;
    byText[line.substr(0, line.find(" = "))].push_back(++number);
  }
  std::set<int> result;
  for (const auto& [text, numbers] : byText) {
    result.insert({numbers.front(), numbers[numbers.size() > 1 ? 1 : 0], numbers.back()});
  }
  return result;
}

TEST(SampleStudy, DistinctCallsAreTheFirstTheSecondAndTheLast) {
  const Lines transcript{"do a", "eval x = 1", "do b", "do a", "eval x = 2", "do a", "eval x = 3", "do a", "dir c = c"};
  EXPECT_EQ(distinctCalls(transcript, {"do ", "eval "}), (std::set{1, 2, 3, 4, 5, 7, 8}));
}

class SampleStudyFaults : public ::testing::TestWithParam<CallKind> {};

TEST_P(SampleStudyFaults, EachDistinctCallMayFail) {
  const std::string folder = scenarios::sampleStudy();
  scenarios::Run reference(folder);
  reference.replay().run(scenarios::kSampleScript);
  const std::vector<std::string_view> beginnings =
      GetParam() == CallKind::engine ? std::vector<std::string_view>{"do ", "eval ", "create ", "callback-set "}
                                     : std::vector<std::string_view>{"regopen ", "regquery ", "dir "};
  for (const int call : distinctCalls(reference.transcript(), beginnings)) {
    expectRightReaction(scenarios::Run(folder), scenarios::kSampleScript, reference.transcript(), GetParam(), call);
  }
}

INSTANTIATE_TEST_SUITE_P(IfMade, SampleStudyFaults,
                         ::testing::ValuesIn(scenarios::isSampleStudyNamed()
                                                 ? std::vector{CallKind::engine, CallKind::machine}
                                                 : std::vector<CallKind>{}),
                         [](const auto& kind) { return kind.param == CallKind::engine ? "Engine" : "Machine"; });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleStudyFaults);

// The rules themselves can tell right from wrong.
TEST(FaultRules, NoticeWhatMustNotFollow) {
  const std::string error = std::string("error -2147352567 ") + scenarios::kFaultText;
  const std::string report =
      std::string("msgbox 0 \"Mortalidad en Veldoria 1999-2002\" \"") + scenarios::kFaultText + "\" = ok";
  struct Case {
    Lines transcript;
    bool isRight;
  };
  for (const Case& c : {
           Case{{"> click Image3 1", "do run menu command 1706", error, "> tree"}, true},
           Case{{"> click Image3 1", "do run menu command 1706", error, "set lblComando.Caption \"x\""}, false},
           Case{{"> click Image3 1", "do run menu command 1706", error, report}, false},
           Case{{"> select CmbZonas x", "do Select x", error, report}, true},
           Case{{"> select CmbZonas x", "do Select x", error}, false},
           Case{{"> select CmbZonas x", "do Select x", error, report, "do Select y"}, false},
           Case{{"> select Ficha Datos", "set ProgressBar1.Value 10", "do run application", error}, false},
           Case{{"> select Ficha Datos", "do set map layer 1 label default"}, false},
           Case{{"> tick", "regopen x\\Mapinfor.exe 1 = 75", "end"}, true},
           Case{{"> tick", "regopen x\\Mapinfor.exe 1 = 75", "form frmInicio unload"}, false},
           Case{{"> tick", "regopen x\\ACRORD32.exe 1 = 75", "do x", "form frmInicio unload"}, true},
           Case{{"> click LblUso", "shell x", std::string("error 75 ") + scenarios::kFaultText}, true},
           Case{{"> click LblUso", "shell x", std::string("error 75 ") + scenarios::kFaultText, report}, false},
       }) {
    EXPECT_EQ(scenarios::complaintAbout(c.transcript).empty(), c.isRight) << c.transcript.front();
  }
}

TEST(Aftermath, NoticesWhatTheNextHandlerMustNotDo) {
  const std::string error = std::string("error -2147352567 ") + scenarios::kFaultText;
  const Lines lost{"> select Ficha Datos", "create MapInfo.runtime #1", "do run application \"x\"", error,
                   "release #1"};
  const Lines kept{"> select Ficha Datos", "create MapInfo.runtime #1", "eval frontwindow()", error};
  const std::string noObject =
      "msgbox 0 \"Mortalidad en Veldoria 1999-2002\" \"La variable de tipo Object o la variable de bloque With no está "
      "establecida\" = ok";
  struct Case {
    Lines before;
    Lines next;
    Lines undisturbed;
    bool isRight;
  };
  for (const Case& c : {
           Case{lost, {"> click Image4 0"}, {"> click Image4 0", "do run menu command 1705"}, true},
           Case{lost, {"> click Image4 0", noObject}, {"> click Image4 0", "do run menu command 1705"}, false},
           Case{lost, {"> select Ficha Mapas"}, {"> select Ficha Mapas", "do set map"}, true},
           Case{lost, {"> select Ficha Mapas", "create MapInfo.runtime #2"}, {"> select Ficha Mapas", "do x"}, false},
           Case{lost,
                {"> select CmbBuscar x", "set txtBuscar.Text \"\"", "clear ListaResultado", noObject,
                 "clear ListaResultado"},
                {"> select CmbBuscar x", "do Select x"},
                true},
           Case{lost, {"> select CmbBuscar x"}, {"> select CmbBuscar x", "do Select x"}, false},
           Case{kept, {"> click Image4 0", "do x"}, {"> click Image4 0", "do x"}, true},
           Case{kept, {"> click Image4 0"}, {"> click Image4 0", "do x"}, false},
           Case{kept, {"> click Image4 0", "eval x = 2"}, {"> click Image4 0", "eval x = 1", "do y"}, true},
           Case{kept, {"> click Image4 0", "eval z = 2"}, {"> click Image4 0", "eval x = 1", "do y"}, false},
       }) {
    Lines transcript = c.before;
    transcript.insert(transcript.end(), c.next.begin(), c.next.end());
    Lines undisturbed{c.before.front()};
    undisturbed.insert(undisturbed.end(), c.undisturbed.begin(), c.undisturbed.end());
    EXPECT_EQ(scenarios::complaintAboutNext(transcript, undisturbed, {}).empty(), c.isRight) << c.next.back();
  }
}

}  // namespace

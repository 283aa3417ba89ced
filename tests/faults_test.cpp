#include "hosts/headless/faults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
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
// goes to the map engine, then those that go to the registry, to files and to programs, then those to the desktop's
// windows, then message boxes and other dialogs. The handler must do what its trap says, and the next one what it does
// in the state that it finds.
namespace {

using headless::CallKind;
using scenarios::Block;
using scenarios::Lines;

struct Kind {
  CallKind kind;
  const char* name;
};
constexpr std::array kKinds{Kind{CallKind::engine, "engine call "}, Kind{CallKind::machine, "machine call "},
                            Kind{CallKind::windows, "window call "}, Kind{CallKind::dialogs, "dialog "}};

constexpr int kLinesAfterFault = 6;

// Runs the script until some lines after the fault, and closes the program. What a line cannot do because of the fault
// (an item that was not listed, a map that is not there) is passed over; a failure that leaves the program is a test
// failure. Gives the lines that were not done.
std::set<std::string> runOn(scenarios::Run& run, const std::string& script) {
  std::set<std::string> notDone;
  const auto runLine = [&](const std::string& line) {
    try {
      run.replay().runLine(line);
    } catch (const headless::UntrappedFailure& failure) {
      ADD_FAILURE() << line << ": " << failure.what();
    } catch (const headless::ScriptError&) {
      notDone.insert("> " + line);
    }
  };
  std::size_t looked = 0;
  int linesLeft = -1;  // before the fault
  headless::forEachTextLine(script, [&](std::string_view line) {
    if (linesLeft == 0) return;
    runLine(std::string(line));
    if (linesLeft > 0 && !line.starts_with("show ")) --linesLeft;
    const auto begin = run.transcript().begin() + static_cast<std::ptrdiff_t>(looked);
    if (linesLeft < 0 && std::any_of(begin, run.transcript().end(), scenarios::isFault)) linesLeft = kLinesAfterFault;
    looked = run.transcript().size();
  });
  if (linesLeft == 0) runLine("close");
  return notDone;
}

Failure faultOf(CallKind kind) {
  if (kind == CallKind::engine) return failures::engineRejected(scenarios::kFaultText);
  return {scenarios::kMachineFault, scenarios::kFaultText};
}

bool hasFault(const Block& block) { return std::ranges::any_of(block.lines, scenarios::isFault); }

bool hasFailure(const Block& block) {
  return std::ranges::any_of(block.lines, [](const std::string& line) { return line.starts_with("error "); });
}

// Whether the handler that the fault meets, or the next one, fails in the undisturbed run already: what two failures
// make of it is nobody's rule.
bool failsAnyway(const Lines& transcript, const Lines& undisturbed) {
  const std::vector<Block> blocks = scenarios::blocksOf(transcript);
  const std::vector<Block> before = scenarios::blocksOf(undisturbed);
  const auto fault = std::ranges::find_if(blocks, hasFault) - blocks.begin();
  const auto end = std::min<std::ptrdiff_t>(fault + 2, std::ssize(before));
  return fault < end && std::any_of(before.begin() + fault, before.begin() + end, hasFailure);
}

// Lets the call of that number fail and judges what follows.
void expectRightReaction(scenarios::Run run, const std::string& script, const Lines& reference, const Kind& kind,
                         int call) {
  run.replay().faults().failCall(kind.kind, call, faultOf(kind.kind));
  const std::set<std::string> notDone = runOn(run, script);
  if (failsAnyway(run.transcript(), reference)) return;
  EXPECT_EQ(scenarios::complaintAbout(run.transcript()), "") << kind.name << call;
  EXPECT_EQ(scenarios::complaintAboutNext(run.transcript(), reference, notDone), "")
      << kind.name << call << ", next line";
}

class Faults : public ::testing::TestWithParam<std::string> {};

TEST_P(Faults, EveryCallMayFail) {
  const std::string script = scenarios::contentsOf(scenarios::file(GetParam(), ".replay"));
  const bool saves = script.find("click ImgExportar") != std::string::npos;
  std::optional<scenarios::Study> study(GetParam());
  scenarios::Run reference(GetParam(), *study);
  {
    const scenarios::InFolder here(study->folder());
    reference.replay().run(script);
  }
  for (const Kind& kind : kKinds) {
    const int calls = reference.replay().faults().calls(kind.kind);
    for (int call = 1; call <= calls; ++call) {
      if (saves) study.emplace(GetParam());
      const scenarios::InFolder here(study->folder());
      expectRightReaction({GetParam(), *study}, script, reference.transcript(), kind, call);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, Faults, ::testing::ValuesIn(scenarios::names()),
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

// A kind of call, and how the lines begin that tell of such calls.
struct SampleKind {
  const char* name;
  Kind kind;
  std::vector<std::string_view> beginnings;
};

const std::vector<SampleKind>& sampleKinds() {
  static const std::vector<SampleKind> kinds{
      {"Engine", kKinds[0], {"do ", "eval ", "create ", "callback-set "}},
      {"Machine", kKinds[1], {"regopen ", "regquery ", "dir "}},
      {"Windows", kKinds[2], {"zorder ", "findwindow ", "parent "}},
  };
  return kinds;
}

class SampleStudyFaults : public ::testing::TestWithParam<SampleKind> {};

TEST_P(SampleStudyFaults, EachDistinctCallMayFail) {
  const std::string folder = scenarios::sampleStudy();
  scenarios::Run reference(folder);
  reference.replay().run(scenarios::kSampleScript);
  const std::set<int> calls = distinctCalls(reference.transcript(), GetParam().beginnings);
  ASSERT_FALSE(calls.empty());
  for (const int call : calls) {
    expectRightReaction(scenarios::Run(folder), scenarios::kSampleScript, reference.transcript(), GetParam().kind,
                        call);
  }
}

INSTANTIATE_TEST_SUITE_P(IfMade, SampleStudyFaults,
                         ::testing::ValuesIn(scenarios::isSampleStudyNamed() ? sampleKinds()
                                                                             : std::vector<SampleKind>{}),
                         [](const auto& kind) { return kind.param.name; });
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

#include "hosts/headless/faults.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "fault_rules.h"
#include "hosts/headless/text_lines.h"
#include "scenario.h"
#include "text/failure.h"

// Each scenario is run again and again with one more call to the map engine failing: the first, the second and so on to
// the last. The handler must do what its trap says, and the program must go on.
namespace {

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
// not there) is passed over; a failure that leaves the program is a test failure.
void runOn(headless::Replay& replay, const std::string& script) {
  headless::forEachTextLine(script, [&](std::string_view line) {
    try {
      replay.runLine(line);
    } catch (const headless::UntrappedFailure& failure) {
      ADD_FAILURE() << line << ": " << failure.what();
    } catch (const headless::ScriptError&) {
      return;
    }
  });
}

class Faults : public ::testing::TestWithParam<std::string> {};

TEST_P(Faults, EveryEngineCallMayFail) {
  const std::string script = scenarios::contentsOf(scenarios::file(GetParam(), ".replay"));
  const scenarios::Study study(GetParam());
  const int calls = [&] {
    scenarios::Run run(GetParam(), study);
    run.replay().run(script);
    return run.replay().faults().engineCalls();
  }();
  for (int call = 1; call <= calls; ++call) {
    scenarios::Run run(GetParam(), study);
    run.replay().faults().failEngineCall(call, failures::engineRejected(scenarios::kFaultText));
    runOn(run.replay(), script);
    const std::string complaint = scenarios::complaintAbout(run.transcript());
    EXPECT_EQ(complaint, "") << "call " << call;
  }
}

INSTANTIATE_TEST_SUITE_P(All, Faults, ::testing::ValuesIn(undisturbed()),
                         [](const auto& scenario) { return scenario.param; });

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
       }) {
    EXPECT_EQ(scenarios::complaintAbout(c.transcript).empty(), c.isRight) << c.transcript.front();
  }
}

}  // namespace

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "host_transcripts.h"
#include "scenario.h"

// Runs every scenario and compares its transcript with the golden one, line by line. With VELDORIA_UPDATE_GOLDEN=1 in
// the environment the golden transcripts are written anew instead; what has changed is then read before it is kept.
namespace {

using scenarios::Lines;

bool updatesGolden() {
  const char* value = std::getenv("VELDORIA_UPDATE_GOLDEN");
  return value != nullptr && std::string(value) == "1";
}

Lines transcriptOf(const std::string& name) {
  const scenarios::Study study(name);
  const scenarios::InFolder here(study.folder());
  scenarios::Run run(name, study);
  run.replay().run(scenarios::contentsOf(scenarios::file(name, ".replay")));
  return run.transcript();
}

class Scenario : public ::testing::TestWithParam<std::string> {};

TEST_P(Scenario, GivesItsGoldenTranscript) {
  const Lines actual = transcriptOf(GetParam());
  const auto golden = scenarios::file(GetParam(), ".golden");
  if (updatesGolden()) {
    std::ofstream out(golden, std::ios::binary);
    for (const std::string& line : actual) out << line << '\n';
    return;
  }
  const Lines expected = scenarios::linesOf(scenarios::contentsOf(golden));
  EXPECT_EQ(scenarios::firstDifference(expected, actual), "");
}

INSTANTIATE_TEST_SUITE_P(All, Scenario, ::testing::ValuesIn(scenarios::names()),
                         [](const auto& scenario) { return scenario.param; });

}  // namespace

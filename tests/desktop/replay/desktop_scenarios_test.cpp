#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "desktop_world.h"
#include "host_transcripts.h"
#include "hosts/headless/replay.h"
#include "scenario.h"

// Plays every scenario with the desktop's widgets: whatever the program tells the map engine, the machine and its user
// is what it is without a screen. With VELDORIA_TRANSCRIPTS the transcripts are written into that folder.
namespace {

namespace fs = std::filesystem;

std::optional<std::string> contentsIfAny(const fs::path& file) {
  if (!fs::exists(file)) return std::nullopt;
  return scenarios::contentsOf(file);
}

scenarios::Lines transcriptOf(const std::string& name) {
  const scenarios::Study study(name);
  const scenarios::InFolder here(study.folder());
  desktop_replay::DesktopWorld world(study.folder(), contentsIfAny(scenarios::file(name, ".registry")),
                                     contentsIfAny(scenarios::file(name, ".engine")));
  world.putFile(study.folder() + "\\Ayuda\\Ayuda.html");
  scenarios::Lines lines;
  headless::Replay replay(world, [&lines](const std::string& line) { lines.push_back(line); });
  replay.run(scenarios::contentsOf(scenarios::file(name, ".replay")));
  return lines;
}

void keep(const std::string& name, const scenarios::Lines& lines) {
  const char* folder = std::getenv("VELDORIA_TRANSCRIPTS");
  if (folder == nullptr) return;
  fs::create_directories(folder);
  std::ofstream out(fs::path(folder) / (name + ".transcript"), std::ios::binary);
  for (const std::string& line : lines) out << line << '\n';
}

class DesktopScenario : public ::testing::TestWithParam<std::string> {};

TEST_P(DesktopScenario, GivesItsGoldenTranscript) {
  const std::string& name = GetParam();
  if (const auto reason = scenarios::whyNotOn("desktop", name)) {
    RecordProperty("cannot", std::string(*reason));
    std::cout << name << ": cannot: " << *reason << '\n';
    return;
  }
  const scenarios::Lines actual = transcriptOf(name);
  keep(name, actual);
  const scenarios::Lines golden = scenarios::linesOf(scenarios::contentsOf(scenarios::file(name, ".golden")));
  EXPECT_EQ(scenarios::firstDifference(scenarios::sharedLines(golden), scenarios::sharedLines(actual)), "");
}

INSTANTIATE_TEST_SUITE_P(All, DesktopScenario, ::testing::ValuesIn(scenarios::names()),
                         [](const auto& scenario) { return scenario.param; });

}  // namespace

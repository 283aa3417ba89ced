#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <string>

#include "hosts/headless/replay.h"
#include "hosts/windows/win32/wide_text.h"
#include "ole/process_counts.h"
#include "replay/test_place.h"
#include "replay/windows_world.h"

namespace wintest {
namespace {

// Everything that the program shows is shown and painted, again and again.
TEST(ProgramLeaks, TwentyRoundsThroughTheProgramLeaveNothingBehind) {
  const TestPlace place = TestPlace::fromEnvironment();
  place.tellEngine("leaks");
  std::filesystem::current_path(windows::wide(place.app));
  WindowsWorld world(place.app, std::nullopt, place.viewer);
  headless::Replay replay(world, [](const std::string&) {});
  const auto play = [&](const char* line) {
    replay.runLine(line);
    for (const windows::FormWindow* window : world.host().windows()) {
      RedrawWindow(window->handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
  };
  const auto playRounds = [&play](int rounds) {
    for (int round = 0; round < rounds; ++round) {
      for (const char* line : {"select Ficha Mapas", "select Ficha Datos", "select CmbProvincias Brisa",
                               "select Ficha Veldoria", "select Ficha Tablas", "select ComboSexo Mujeres"}) {
        play(line);
      }
    }
  };
  constexpr int kWarmUp = 3;
  constexpr int kRounds = 20;
  constexpr LRESULT kNoted =
      20;  // blocks of memory for what the recorder and the system note of the windows of a round
  play("start");
  play("tick");
  playRounds(kWarmUp);
  const ProcessCounts before = ProcessCounts::ofThisProcess();
  playRounds(kRounds);
  ProcessCounts after = ProcessCounts::ofThisProcess();
  std::cout << kRounds << " rounds; " << before << " -> " << after << '\n';
  after.memoryBlocks -= kRounds * kNoted;
  EXPECT_EQ(after.lostSince(before), "");
}

}  // namespace
}  // namespace wintest

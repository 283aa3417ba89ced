#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "hosts/headless/replay.h"
#include "hosts/windows/win32/wide_text.h"
#include "ole/process_counts.h"
#include "replay/engine_orders.h"
#include "replay/test_place.h"
#include "replay/windows_world.h"

// The engine's process dies in the middle of a consultation, inside each of its calls in turn, with its work done and
// no answer given: the program says so once, lives, and works again with a new engine after the tables tab was entered
// and left.
namespace wintest {
namespace {

using Lines = std::vector<std::string>;

// What a call fails with whose engine dies before it answers; every later one fails in another way.
constexpr const char* kCutOff = "error -2147023170 ";

constexpr const char* kConsultation = "select CmbProvincias Brisa";

class EngineDeath : public ::testing::Test {
 protected:
  EngineDeath() : place_(TestPlace::fromEnvironment()) {
    place_.tellEngine("deaths");
    std::filesystem::current_path(windows::wide(place_.app));
    world_.emplace(place_.app, std::nullopt, place_.viewer);
    replay_.emplace(*world_, [this](const std::string& line) { lines_.push_back(line); });
  }

  // What a line of a script does.
  Lines effectsOf(const std::string& line) {
    lines_.clear();
    replay_->runLine(line);
    return lines_;
  }

  static std::ptrdiff_t count(const Lines& lines, std::string_view beginning) {
    return std::ranges::count_if(lines, [&](const std::string& line) { return line.starts_with(beginning); });
  }
  static bool isEngineCall(const std::string& line) { return line.starts_with("do ") || line.starts_with("eval "); }
  static std::ptrdiff_t engineCalls(const Lines& lines) { return std::ranges::count_if(lines, isEngineCall); }

  // What engines came and went.
  static Lines engineLife(const Lines& lines) {
    Lines life;
    for (const std::string& line : lines) {
      const std::string word = line.substr(0, line.find(' '));
      if (word == "create" || word == "release") life.push_back(word);
    }
    return life;
  }

  // A consultation whose nth call kills the engine, and the way back to an engine that works. Until then all is as in
  // the consultation that succeeds.
  void dieInCall(std::ptrdiff_t n, const Lines& expected) {
    SCOPED_TRACE(n);
    const DWORD engine = processOf(engineListening());
    ASSERT_TRUE(world_->order({"die", std::to_string(n)}));
    expectDeath(effectsOf(kConsultation), n, expected);
    EXPECT_FALSE(replay_->hasEnded());
    expectNoEngine(kConsultation, 1);
    expectNoEngine("select Ficha Mapas", 0);
    expectRecovery(engine);
  }

  static void expectDeath(const Lines& effects, std::ptrdiff_t n, const Lines& expected) {
    const auto failure =
        std::ranges::find_if(effects, [](const std::string& line) { return line.starts_with("error "); });
    ASSERT_NE(failure, effects.end());
    EXPECT_TRUE(failure->starts_with(kCutOff)) << *failure;
    const auto call = std::prev(failure);
    EXPECT_TRUE(isEngineCall(*call)) << *call;
    EXPECT_EQ(std::count_if(effects.begin(), failure, isEngineCall), n);
    const auto place = call - effects.begin();
    ASSERT_LT(place, std::ssize(expected));
    EXPECT_EQ(Lines(effects.begin(), call), Lines(expected.begin(), expected.begin() + place));
    EXPECT_TRUE(expected[static_cast<std::size_t>(place)].starts_with(*call)) << *call;
    EXPECT_EQ(count(effects, "msgbox "), 1) << "it is said once";
  }

  // Nothing works, and no new engine is made.
  void expectNoEngine(const std::string& line, std::ptrdiff_t messages) {
    const Lines effects = effectsOf(line);
    EXPECT_EQ(count(effects, "msgbox "), messages) << line;
    EXPECT_EQ(engineLife(effects), Lines{}) << line;
  }

  // The tables tab is entered in vain, but left with success: the dead engine goes, one in a process of its own comes.
  void expectRecovery(DWORD dead) {
    EXPECT_EQ(engineLife(effectsOf("select Ficha Tablas")), Lines{});
    EXPECT_EQ(engineListening(), nullptr);
    const Lines effects = effectsOf("select Ficha Datos");
    EXPECT_EQ(engineLife(effects), (Lines{"release", "create"}));
    EXPECT_EQ(count(effects, "error "), 0);
    EXPECT_NE(processOf(engineListening()), 0U);
    EXPECT_NE(processOf(engineListening()), dead);
  }

  TestPlace place_;
  Lines lines_;
  std::optional<WindowsWorld> world_;
  std::optional<headless::Replay> replay_;
};

// Each engine is asked for a consultation of which one call more is answered. A consultation that follows another has
// calls of its own, which take that one off the map.
TEST_F(EngineDeath, AtEveryCallOfAConsultation) {
  (void)(effectsOf("start"), effectsOf("tick"), effectsOf("select Ficha Datos"));
  ASSERT_NE(processOf(engineListening()), GetCurrentProcessId()) << "an engine in this process takes it along";
  const Lines first = effectsOf(kConsultation);
  const Lines tree = effectsOf("tree");
  const Lines second = effectsOf(kConsultation);
  const auto calls = engineCalls(first);
  const auto callsBefore = engineCalls(second) - calls;
  ASSERT_GT(calls, 10);
  ASSERT_GT(callsBefore, 0);
  std::cout << "the engine dies at each of " << calls << " calls, and of " << callsBefore
            << " between two consultations" << std::endl;
  for (std::ptrdiff_t n = 1; n <= callsBefore; ++n) {
    dieInCall(n, second);
    EXPECT_EQ(effectsOf(kConsultation), first);
  }
  dieInCall(callsBefore + 1, second);
  for (std::ptrdiff_t n = 1; n <= calls; ++n) dieInCall(n, first);
  EXPECT_EQ(effectsOf(kConsultation), first);
  EXPECT_EQ(effectsOf("tree"), tree);
  EXPECT_EQ(count(effectsOf("close"), "form frmPrincipal unload"), 1);
}

}  // namespace
}  // namespace wintest

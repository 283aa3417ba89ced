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

// The engine's process dies in the middle of a consultation, at each of its calls in turn: the program says so once,
// lives, and works again with a new engine after the tables tab was entered and left.
namespace wintest {
namespace {

using Lines = std::vector<std::string>;

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
  void goToData() { (void)(effectsOf("select Ficha Tablas"), effectsOf("select Ficha Datos")); }

  static std::ptrdiff_t count(const Lines& lines, std::string_view beginning) {
    return std::ranges::count_if(lines, [&](const std::string& line) { return line.starts_with(beginning); });
  }
  static std::ptrdiff_t engineCalls(const Lines& lines) { return count(lines, "do ") + count(lines, "eval "); }

  TestPlace place_;
  Lines lines_;
  std::optional<WindowsWorld> world_;
  std::optional<headless::Replay> replay_;
};

TEST_F(EngineDeath, AtEveryCallOfAConsultation) {
  (void)(effectsOf("start"), effectsOf("tick"), effectsOf("select Ficha Datos"));
  if (processOf(engineListening()) == GetCurrentProcessId()) return;  // a DLL takes the program along
  const Lines first = effectsOf(kConsultation);
  const Lines tree = effectsOf("tree");
  const auto calls = engineCalls(effectsOf(kConsultation));  // the next one removes this one from the map
  ASSERT_GT(calls, 10);
  std::cout << "the engine dies at each of " << calls << " calls" << std::endl;
  for (std::ptrdiff_t n = 1; n <= calls; ++n) {
    ASSERT_TRUE(world_->order({"die", std::to_string(n)})) << n;
    const Lines effects = effectsOf(kConsultation);
    EXPECT_GE(count(effects, "error "), 1) << n;
    EXPECT_EQ(count(effects, "msgbox "), 1) << n << ": it is said once";
    EXPECT_FALSE(replay_->hasEnded()) << n;
    EXPECT_EQ(count(effectsOf(kConsultation), "msgbox "), 1) << n << ": nothing works without an engine";
    goToData();
    EXPECT_EQ(effectsOf(kConsultation), first) << n;
    EXPECT_EQ(effectsOf("tree"), tree) << n;
  }
  EXPECT_EQ(count(effectsOf("close"), "form frmPrincipal unload"), 1);
}

}  // namespace
}  // namespace wintest

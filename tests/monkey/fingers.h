#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "atlas/atlas.h"
#include "forms/form.h"

namespace monkey {

// Thinks of the next thing that a user, the engine or the machine might do, as a line of a replay script. The same seed
// and the same program give the same lines on every machine.
class Fingers {
 public:
  explicit Fingers(std::uint64_t seed) : random_(seed) {}

  // A line for the program as it is; `program` is null as long as it has not been started.
  [[nodiscard]] std::string next(const atlas::Atlas* program);

  // A whole number from 0 on, below `count`.
  [[nodiscard]] std::size_t below(std::size_t count) { return static_cast<std::size_t>(random_() % count); }

 private:
  struct Habit {
    int weight;
    // Gives "" where there is nothing to do it to.
    std::string (Fingers::*line)(const atlas::Atlas& program);
  };
  [[nodiscard]] static const std::vector<Habit>& habits();

  [[nodiscard]] bool onceIn(std::size_t times) { return below(times) == 0; }
  template <class Texts>
  [[nodiscard]] std::string oneOf(const Texts& texts) {
    return std::string(texts[below(std::size(texts))]);
  }
  // A control of that kind that the user can get at, now and then one that he cannot; null when there is none.
  template <class Kind>
  [[nodiscard]] Kind* control(const atlas::Atlas& program);

  // What a user does.
  std::string pickMainTab(const atlas::Atlas& program);
  std::string pickTab(const atlas::Atlas& program);
  std::string pickYear(const atlas::Atlas& program);
  std::string pickItem(const atlas::Atlas& program);
  std::string clickImage(const atlas::Atlas& program);
  std::string clickLabel(const atlas::Atlas& program);
  std::string clickButton(const atlas::Atlas& program);
  std::string chooseOption(const atlas::Atlas& program);
  std::string type(const atlas::Atlas& program);
  std::string focus(const atlas::Atlas& program);
  std::string point(const atlas::Atlas& program);
  std::string clickMap(const atlas::Atlas& program);
  std::string changeWindow(const atlas::Atlas& program);
  std::string closeWindow(const atlas::Atlas& program);
  std::string wait(const atlas::Atlas& program);
  // What the world does.
  std::string callBack(const atlas::Atlas& program);
  std::string answer(const atlas::Atlas& program);
  std::string hideFile(const atlas::Atlas& program);
  std::string failEngine(const atlas::Atlas& program);
  std::string failOther(const atlas::Atlas& program);

  [[nodiscard]] std::string failureWords();

  std::mt19937_64 random_;
};

}  // namespace monkey

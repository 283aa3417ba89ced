#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "shrink.h"

namespace monkey {

// A run of the program that went wrong.
struct Finding {
  std::uint64_t seed = 0;
  int life = 0;           // counted from 1
  std::string complaint;  // "RULE: what"
  Script script;          // the shortest that fails by the same rule
};

// The finding with its script, in words.
[[nodiscard]] std::string described(const Finding& finding);

// What a monkey has done.
struct Diary {
  int actions = 0;
  int lives = 0;
  int failures = 0;                  // calls that failed
  int messages = 0;                  // message boxes shown
  std::map<std::string, int> verbs;  // by the first word of the script's lines
  std::map<int, int> tabs;           // actions on each main tab
};

struct Errand {
  std::string studyFolder;  // a copy of its own, which is written into
  std::uint64_t seed = 0;
  int actions = 0;
  // Told of each finding; false ends the errand.
  std::function<bool(const Finding& finding)> found;
  // Told of each line before it is done, with the number of its life; may be missing.
  std::function<void(int life, const std::string& line)> about;
};

// Lets the monkey play with the program: life after life, until so many actions are done. Each life is closed at its
// end and follows from the seed and its number alone.
Diary play(const Errand& errand);

}  // namespace monkey

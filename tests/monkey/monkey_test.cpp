#include "monkey.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "fingers.h"
#include "life.h"
#include "scenario.h"

// A monkey plays with the program on the tiny study, with the embedded engine and with failures of everything outside.
// What it does follows from the seed, so that what it finds can be found again; the script that it leaves is a
// scenario.
namespace {

constexpr int kActions = 10000;
constexpr std::uint64_t kSeed = 19992002;

// The script of the life under way, which is left behind by a crash.
std::filesystem::path trailFile() { return std::filesystem::temp_directory_path() / "veldoria-monkey.replay"; }

class Trail {
 public:
  void add(int life, const std::string& line) {
    if (life != life_) file_ = std::ofstream(trailFile());
    life_ = life;
    file_ << line << '\n' << std::flush;
  }

 private:
  std::ofstream file_;
  int life_ = 0;
};

TEST(Monkey, FindsNothingWrong) {
  const scenarios::Study study;
  Trail trail;
  const monkey::Diary diary =
      monkey::play({.studyFolder = study.folder(),
                    .seed = kSeed,
                    .actions = kActions,
                    .found =
                        [](const monkey::Finding& finding) {
                          ADD_FAILURE() << described(finding);
                          return false;
                        },
                    .about = [&](int life, const std::string& line) { trail.add(life, line); }});
  if (HasFailure()) return;
  std::filesystem::remove(trailFile());
  // It has been everywhere.
  EXPECT_EQ(diary.actions, kActions);
  EXPECT_GT(diary.lives, 50);
  EXPECT_GT(diary.failures, kActions / 20);
  EXPECT_GT(diary.messages, kActions / 50);
  for (int tab = 0; tab < 4; ++tab) EXPECT_GT(diary.tabs.at(tab), kActions / 20) << tab;
  for (const char* verb :
       {"select",     "click",    "type",    "mouseup", "mousemove",   "focus",  "mapclick",    "callback",
        "resize",     "minimize", "restore", "tick",    "doubleclick", "close",  "answer",      "savename",
        "savecancel", "fail",     "failat",  "file",    "nofile",      "window", "locationname"}) {
    EXPECT_GE(diary.verbs.at(verb), 10) << verb;
  }
}

// The script of a life gives that life again, whatever was before it.
TEST(Monkey, ItsScriptsCanBeReplayed) {
  const scenarios::Study study;
  monkey::Fingers fingers(kSeed);
  std::vector<std::vector<std::string>> effects;
  monkey::Script script;
  {
    monkey::Life life(study.folder());
    while (script.size() < 300 && !life.isOver()) {
      if (!life.act(fingers.next(life.program()))) continue;
      effects.push_back(life.effects());
      script = life.script();
    }
  }
  ASSERT_GT(script.size(), 100U);
  monkey::Life again(study.folder());
  for (std::size_t i = 0; i < script.size(); ++i) {
    ASSERT_TRUE(again.act(script[i])) << script[i];
    EXPECT_EQ(again.effects(), effects[i]) << script[i];
  }
}

}  // namespace

#include "monkey.h"

#include <algorithm>

#include "atlas/shell/frm_principal.h"
#include "fingers.h"
#include "life.h"

namespace monkey {
namespace {

constexpr std::size_t kLongestLife = 240;  // actions
constexpr int kTries = 50;                 // of thinking of something that can be done

// Another number for each life.
std::uint64_t seedOfLife(std::uint64_t seed, int life) {
  constexpr std::uint64_t kStep = 0x9E3779B97F4A7C15;
  return seed + kStep * static_cast<std::uint64_t>(life);
}

int count(const std::vector<std::string>& lines, const char* beginning) {
  return static_cast<int>(
      std::ranges::count_if(lines, [&](const std::string& line) { return line.starts_with(beginning); }));
}

void note(Diary& diary, Life& life) {
  ++diary.actions;
  const std::string& line = life.script().back();
  ++diary.verbs[line.substr(0, line.find(' '))];
  diary.failures += count(life.effects(), "error ");
  diary.messages += count(life.effects(), "msgbox ");
  if (life.program() == nullptr) return;
  for (const forms::Form* form : life.program()->forms()) {
    if (const auto* main = dynamic_cast<const atlas::FrmPrincipal*>(form)) ++diary.tabs[main->Ficha.tab()];
  }
}

// One action. False when the program is over, or nothing can be done any more.
bool actOnce(Life& life, Fingers& fingers, const std::function<void(const std::string&)>& about) {
  for (int i = 0; i < kTries && !life.isOver(); ++i) {
    const std::string line = fingers.next(life.program());
    if (about) about(line);
    if (life.act(line)) return true;
  }
  return false;
}

Finding findingOf(const Errand& errand, const Diary& diary, const Life& life) {
  const std::string rule = ruleOf(life.complaint());
  Finding finding{errand.seed, diary.lives, life.complaint(), life.script()};
  finding.script = shrunk(finding.script, [&](const Script& shorter) {
    return ruleOf(complaintAbout(shorter, errand.studyFolder)) == rule;
  });
  return finding;
}

}  // namespace

std::string described(const Finding& finding) {
  std::string words =
      finding.complaint + "\n# seed " + std::to_string(finding.seed) + ", life " + std::to_string(finding.life) + "\n";
  for (const std::string& line : finding.script) words += line + "\n";
  return words;
}

Diary play(const Errand& errand) {
  Diary diary;
  while (diary.actions < errand.actions) {
    ++diary.lives;
    Fingers fingers(seedOfLife(errand.seed, diary.lives));
    const auto about = [&](const std::string& line) {
      if (errand.about) errand.about(diary.lives, line);
    };
    const std::size_t length = 1 + fingers.below(kLongestLife);
    Life life(errand.studyFolder);
    for (std::size_t i = 0; i < length && life.complaint().empty(); ++i) {
      if (diary.actions == errand.actions || !actOnce(life, fingers, about)) break;
      note(diary, life);
    }
    if (life.complaint().empty()) life.end();
    if (!life.complaint().empty() && !errand.found(findingOf(errand, diary, life))) break;
  }
  return diary;
}

}  // namespace monkey

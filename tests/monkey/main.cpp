#include <charconv>
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "life.h"
#include "monkey.h"
#include "scenario.h"

// Lets the monkey play as long as one likes: see the usage.
namespace {

constexpr const char* kUsage =
    "monkey SEED COUNT [TRAIL]\n"
    "Does COUNT random actions on the tiny study, all of them told by SEED, and prints each rule that was broken with\n"
    "the shortest script that breaks it. TRAIL is a file that always holds the script of the life under way.\n";

template <class Number>
Number numberFrom(const std::string& text) {
  Number value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) throw std::invalid_argument("no number: " + text);
  return value;
}

void print(const monkey::Diary& diary) {
  std::cout << diary.actions << " actions in " << diary.lives << " lives, " << diary.failures << " failed calls, "
            << diary.messages << " messages\n";
  for (const auto& [verb, times] : diary.verbs) std::cout << "  " << verb << ' ' << times << '\n';
  for (const auto& [tab, times] : diary.tabs) std::cout << "  tab " << tab << ": " << times << '\n';
}

}  // namespace

int main(int count, char** words) {
  const std::vector<std::string> arguments(words + 1, words + count);
  if (arguments.size() < 2 || arguments.size() > 3) {
    std::cerr << kUsage;
    return 2;
  }
  try {
    const scenarios::Study study;
    std::set<std::string> rules;
    std::ofstream trail;
    int lifeOfTrail = 0;
    monkey::Errand errand{.studyFolder = study.folder(),
                          .seed = numberFrom<std::uint64_t>(arguments[0]),
                          .actions = numberFrom<int>(arguments[1]),
                          .found =
                              [&](const monkey::Finding& finding) {
                                if (rules.insert(finding.complaint).second) {
                                  std::cout << described(finding) << std::endl;
                                }
                                return true;
                              },
                          .about = {}};
    if (arguments.size() == 3) {
      errand.about = [&](int life, const std::string& line) {
        if (life != lifeOfTrail) trail = std::ofstream(arguments[2]);
        lifeOfTrail = life;
        trail << line << '\n' << std::flush;
      };
    }
    print(monkey::play(errand));
    return rules.empty() ? 0 : 1;
  } catch (const std::exception& problem) {
    std::cerr << "monkey: " << problem.what() << '\n';
    return 2;
  }
}

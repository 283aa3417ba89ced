#include <filesystem>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include "host_transcripts.h"
#include "scenario.h"

// One table of all scenarios and hosts: host_table NAME=FOLDER... with the folder of a host's transcripts each
// (SCENARIO.transcript). A transcript is the same, differs from the golden one, or is not there for a reason that is
// given below the table. The last line is "ALL n PASSED" when nothing differs and nothing is missing.
namespace {

namespace fs = std::filesystem;

struct Host {
  std::string name;  // "windows-dll" is a way to run "windows"
  fs::path transcripts;
  [[nodiscard]] std::string kind() const { return name.substr(0, name.find('-')); }
};

std::vector<Host> hostsIn(int count, char** words) {
  std::vector<Host> hosts;
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    const std::size_t sign = word.find('=');
    if (sign != std::string::npos) hosts.push_back({word.substr(0, sign), word.substr(sign + 1)});
  }
  return hosts;
}

scenarios::Lines linesIn(const fs::path& file) { return scenarios::linesOf(scenarios::contentsOf(file)); }

scenarios::Lines golden(const std::string& name) {
  return scenarios::sharedLines(linesIn(scenarios::file(name, ".golden")));
}

// How a host's transcript differs from the golden one; "" when it does not. The last line of a Windows transcript tells
// that the program has ended as it should.
std::string differenceOf(const std::string& name, const Host& host, const fs::path& transcript) {
  scenarios::Lines lines = linesIn(transcript);
  if (host.kind() == "windows") {
    if (lines.empty() || lines.back() != "REPLAYED") return "the program did not come to its end";
    lines.pop_back();
  }
  return scenarios::firstDifference(golden(name), scenarios::sharedLines(lines));
}

std::string withoutScreen(const std::string& name) {
  const scenarios::Study study(name);
  const scenarios::InFolder here(study.folder());
  scenarios::Run run(name, study);
  run.replay().run(scenarios::contentsOf(scenarios::file(name, ".replay")));
  return scenarios::firstDifference(golden(name), scenarios::sharedLines(run.transcript()));
}

class Table {
 public:
  // What was found for a scenario on a host; a difference is told in full.
  void note(const std::string& name, const std::string& host, const std::string& difference) {
    std::cout << std::left << std::setw(kColumn) << (difference.empty() ? "same" : "DIFFERS");
    if (difference.empty()) {
      ++same_;
    } else {
      differences_.push_back(name + " on " + host + ": " + difference);
    }
  }
  void cannot(const std::string& name, const std::string& host, std::string_view reason) {
    std::cout << std::left << std::setw(kColumn) << "cannot";
    reasons_.push_back(name + " on " + host + ": " + std::string(reason));
  }
  // The rest below the table; true when nothing differs.
  bool finish() const {
    for (const std::string& reason : reasons_) std::cout << "cannot: " << reason << '\n';
    for (const std::string& difference : differences_) std::cout << "differs: " << difference << '\n';
    if (differences_.empty()) std::cout << "ALL " << same_ << " PASSED" << std::endl;
    return differences_.empty();
  }

  static constexpr int kColumn = 17;

 private:
  int same_ = 0;
  std::vector<std::string> reasons_;
  std::vector<std::string> differences_;
};

}  // namespace

int main(int count, char** words) {
  const std::vector<Host> hosts = hostsIn(count, words);
  constexpr int kNames = 38;
  std::cout << std::left << std::setw(kNames) << "scenario" << std::setw(Table::kColumn) << "headless";
  for (const Host& host : hosts) std::cout << std::setw(Table::kColumn) << host.name;
  std::cout << '\n';
  Table table;
  for (const std::string& name : scenarios::names()) {
    std::cout << std::left << std::setw(kNames) << name;
    table.note(name, "headless", withoutScreen(name));
    for (const Host& host : hosts) {
      const fs::path file = host.transcripts / (name + ".transcript");
      if (const auto reason = scenarios::whyNotOn(host.kind(), name)) {
        table.cannot(name, host.name, *reason);
      } else if (!fs::exists(file)) {
        table.note(name, host.name, "there is no transcript");
      } else {
        table.note(name, host.name, differenceOf(name, host, file));
      }
    }
    std::cout << '\n';
  }
  return table.finish() ? 0 : 1;
}

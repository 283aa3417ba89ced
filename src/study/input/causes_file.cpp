#include "study/input/causes_file.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "study/input/csv_file.h"
#include "study/input/input_text.h"
#include "study/input/names.h"
#include "study/model/indicators.h"
#include "study/model/sexes.h"
#include "text/utf8.h"

namespace study {

namespace {

enum Column : std::size_t { code, cause, list, sums, sex };

std::vector<std::string_view> words(std::string_view text) {
  std::vector<std::string_view> result;
  while (!(text = trimmed(text)).empty()) {
    const std::size_t end = std::min(text.find_first_of(" \t\r\n"), text.size());
    result.push_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return result;
}

class Reader {
 public:
  Reader(const std::filesystem::path& folder, FaultLog& log)
      : file_(folder, {log, kCausesFile}, {{"code"}, {"cause"}, {"list"}, {"sums"}, {"sex", false}}) {}

  CauseList read() {
    if (!file_.isReadable()) return {};
    while (file_.next()) readRow();
    checkCodes();
    checkThematicCauses();
    std::stable_sort(causes_.published.begin(), causes_.published.end(),
                     [](const auto& a, const auto& b) { return a.list == kBroadGroups && b.list != kBroadGroups; });
    return std::move(causes_);
  }

 private:
  struct CountedCode {
    std::size_t line = 0;  // of the first row that sums it
    std::size_t broadGroups = 0;
    std::string broadGroup;
  };

  void readRow() {
    PublishedCause published{text::compose(file_[code]), std::string(file_[list]), text::compose(file_[cause]), {}};
    const bool isOfAList = published.list == kBroadGroups || published.list == kReducedList;
    if (!isOfAList) {
      file_.fault(FaultKind::unknownList, "there is no list " + inQuotes(published.list),
                  "write \"Grandes grupos\" or \"Lista reducida\"");
    }
    checkTexts(published);
    if (isOfAList && !names_.emplace(published.list, folded(published.name)).second) {
      file_.fault(FaultKind::doubleCause,
                  "the cause " + inQuotes(published.name) + " is in " + inQuotes(published.list) + " twice",
                  "remove one of the two, or name them apart");
    }
    readSex(published);
    readSums(published);
    causes_.published.push_back(std::move(published));
  }

  void checkTexts(const PublishedCause& published) {
    if (published.code.empty() || published.name.empty()) {
      file_.fault(FaultKind::emptyText, "the row has no " + std::string(published.code.empty() ? "code" : "cause"),
                  "fill it in");
    }
    checkText(file_.faults(), file_.line(), "the code", published.code, kLongestName, FaultKind::badText);
    checkText(file_.faults(), file_.line(), "the cause", published.name, kLongestIndicator - text::length(kCausePrefix),
              FaultKind::badText);
  }

  void readSex(PublishedCause& published) {
    const std::string_view name = file_[sex].empty() ? kSexChoices.front().name : file_[sex];
    const auto choice =
        std::find_if(kSexChoices.begin(), kSexChoices.end(), [&](const SexChoice& c) { return c.name == name; });
    if (choice == kSexChoices.end()) {
      file_.fault(FaultKind::unknownSex, "there is no sex " + inQuotes(name),
                  "write \"Hombres\", \"Mujeres\" or \"Ambos sexos\"");
      return;
    }
    published.men = choice->men;
    published.women = choice->women;
  }

  void readSums(PublishedCause& published) {
    const std::vector<std::string_view> summed = words(file_[sums]);
    if (summed.empty()) {
      file_.fault(FaultKind::sumsNothing, "the cause " + inQuotes(published.name) + " sums nothing",
                  "list the codes of deaths.csv that it sums, with blanks between them");
    }
    for (const std::string_view word : summed) {
      const std::size_t index = indexOf(word);
      if (std::find(published.sums.begin(), published.sums.end(), index) != published.sums.end()) {
        file_.fault(FaultKind::sumsTwice,
                    "the cause " + inQuotes(published.name) + " sums " + inQuotes(word) + " twice",
                    "name each code once");
        continue;
      }
      published.sums.push_back(index);
      if (published.list == kBroadGroups) noteBroadGroup(codes_[index], word, published.name);
    }
  }

  std::size_t indexOf(std::string_view word) {
    const auto [found, isNew] = indices_.try_emplace(std::string(word), causes_.codes.size());
    if (isNew) {
      causes_.codes.emplace_back(word);
      codes_.push_back({file_.line(), 0, {}});
    }
    return found->second;
  }

  void noteBroadGroup(CountedCode& counted, std::string_view word, const std::string& group) {
    if (++counted.broadGroups == 1) {
      counted.broadGroup = group;
      return;
    }
    file_.fault(FaultKind::codeInTwoBroadGroups,
                "the code " + inQuotes(word) + " is summed by " + inQuotes(group) + ", but already by " +
                    inQuotes(counted.broadGroup),
                "leave it to one broad group, for each death belongs to one");
  }

  void checkCodes() {
    for (std::size_t i = 0; i < codes_.size(); ++i) {
      if (codes_[i].broadGroups > 0) continue;
      file_.faults().add(FaultKind::codeInNoBroadGroup, codes_[i].line,
                         "the code " + inQuotes(causes_.codes[i]) + " is summed by no broad group",
                         "name it in the sums of one row of \"Grandes grupos\"");
    }
  }

  void checkThematicCauses() {
    for (const std::string_view thematic : kThematicCauses) {
      const bool isThere =
          std::any_of(causes_.published.begin(), causes_.published.end(), [&](const PublishedCause& published) {
            return published.list == kReducedList && published.name == thematic;
          });
      if (isThere) continue;
      file_.faults().add(FaultKind::missingThematicCause, 0,
                         "\"Lista reducida\" lacks the cause " + inQuotes(thematic) + ", which the program has maps of",
                         "add it, spelled just so");
    }
  }

  CsvFile file_;
  CauseList causes_;
  std::vector<CountedCode> codes_;              // by code
  std::map<std::string, std::size_t> indices_;  // of the codes
  std::set<std::pair<std::string, std::string>> names_;
};

}  // namespace

CauseList readCauses(const std::filesystem::path& folder, FaultLog& log) { return Reader(folder, log).read(); }

}  // namespace study

#include "host_transcripts.h"

#include <algorithm>
#include <array>
#include <set>

#include "text/utf8.h"

namespace scenarios {
namespace {

struct Impossible {
  std::string_view host;
  std::string_view scenario;
  std::string_view reason;
};

constexpr std::string_view kNoOtherWindows = "the desktop does not tell of other programs' windows";
constexpr std::string_view kGoesWithOwner = "the selector goes with the main window that it lies in front of";
constexpr std::string_view kCrossing = "a pointer crosses the window between two menus, which closes the first";

constexpr std::array kImpossible{
    Impossible{"desktop", "close_refused_with_selector", kGoesWithOwner},
    Impossible{"desktop", "side_menu", kCrossing},
    Impossible{"desktop", "start_up_engine_frame", kNoOtherWindows},
    Impossible{"windows", "checks_full_acrobat", "no machine lets a key be opened and its value not be read"},
    Impossible{"windows", "side_menu", kCrossing},
};

bool isPlace(const std::string& line) {
  if (!line.starts_with("set ") && !line.starts_with("show ")) return false;
  const std::size_t blank = line.find(' ', line.find(' ') + 1);
  const std::string_view what = std::string_view(line).substr(0, blank);
  return std::ranges::any_of(std::array{".Left", ".Top", ".Width", ".Height"},
                             [&](std::string_view property) { return what.ends_with(property); });
}

// The names of callback methods are found in any case, and an engine may call them by their numbers.
std::string withMethodInLowerCase(const std::string& line) {
  constexpr std::string_view kCall = "call ";
  if (!line.starts_with(kCall)) return line;
  const std::size_t end = std::min(line.find(' ', kCall.size()), line.size());
  return std::string(kCall) + text::lower(line.substr(kCall.size(), end - kCall.size())) + line.substr(end);
}

// Takes note of the forms that are loaded. One that is not has no window whose place among the others could be set;
// only a host without a screen still has a name for it.
class LoadedForms {
 public:
  [[nodiscard]] std::string seenBy(const std::string& line) {
    const auto word = [&line](std::size_t from) { return line.substr(from, line.find(' ', from) - from); };
    if (line.starts_with(kForm)) {
      const std::string name = word(kForm.size());
      if (line.ends_with(" load")) loaded_.insert(name);
      if (line.ends_with(" unload")) loaded_.erase(name);
    }
    if (!line.starts_with(kOrder)) return line;
    const std::string name = word(kOrder.size());
    return loaded_.contains(name) ? line : std::string(kOrder) + "0" + line.substr(kOrder.size() + name.size());
  }

 private:
  static constexpr std::string_view kForm = "form ";
  static constexpr std::string_view kOrder = "zorder ";
  std::set<std::string> loaded_;
};

// A page's title or file name, which only a view that shows the page knows.
std::string withoutProposedName(const std::string& line) {
  constexpr std::string_view kFirstTwo = "savedialog \"Guardar como...\" \"*.html|HTML\" ";
  const std::size_t end = line.rfind("\" = ");
  if (!line.starts_with(kFirstTwo) || end == std::string::npos) return line;
  return std::string(kFirstTwo) + line.substr(end + 2);
}

}  // namespace

Lines sharedLines(const Lines& transcript) {
  Lines lines = transcript;
  std::erase_if(lines, isPlace);
  LoadedForms forms;
  std::ranges::transform(lines, lines.begin(), [&forms](const std::string& line) {
    return withMethodInLowerCase(withoutProposedName(forms.seenBy(line)));
  });
  return lines;
}

std::string firstDifference(const Lines& expected, const Lines& actual) {
  if (expected == actual) return "";
  const auto [e, a] = std::ranges::mismatch(expected, actual);
  const std::ptrdiff_t at = e - expected.begin();
  std::string report = "line " + std::to_string(at + 1) + "\n";
  for (std::ptrdiff_t i = std::max<std::ptrdiff_t>(0, at - 5); i < at; ++i) {
    report += "    " + expected[static_cast<std::size_t>(i)] + "\n";
  }
  report += "  - " + (e == expected.end() ? "(nothing more)" : *e) + "\n";
  report += "  + " + (a == actual.end() ? "(nothing more)" : *a) + "\n";
  return report;
}

std::optional<std::string_view> whyNotOn(std::string_view host, std::string_view scenario) {
  const auto* found = std::ranges::find_if(
      kImpossible, [&](const Impossible& row) { return row.host == host && row.scenario == scenario; });
  if (found == kImpossible.end()) return std::nullopt;
  return found->reason;
}

}  // namespace scenarios

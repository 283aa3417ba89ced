#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <string_view>

#include "hosts/headless/text_lines.h"
#include "hosts/headless/wildcard.h"
#include "scenario.h"

// program_texts.txt lists every text of the program. Each is in some golden transcript, and no golden transcript has a
// text that is not listed.
namespace {

using scenarios::Lines;

// The effects that tell of the program's own texts.
constexpr std::array kTelling{
    std::string_view("do "),           std::string_view("eval "),        std::string_view("create "),
    std::string_view("callback-set "), std::string_view("regopen "),     std::string_view("regquery "),
    std::string_view("dir "),          std::string_view("copy "),        std::string_view("shell "),
    std::string_view("msgbox "),       std::string_view("savedialog "),  std::string_view("help "),
    std::string_view("findwindow "),   std::string_view("closewindow "), std::string_view("zorder "),
    std::string_view("parent "),       std::string_view("navigate ")};
constexpr std::array kTellingProperties{std::string_view("Caption"), std::string_view("ToolTipText"),
                                        std::string_view("TabCaption("), std::string_view("Tabs(")};

Lines listed() {
  Lines texts;
  headless::forEachTextLine(scenarios::contentsOf(VELDORIA_PROGRAM_TEXTS),
                            [&](std::string_view line) { texts.emplace_back(line); });
  return texts;
}

// The different lines of all golden transcripts but those of the scripts.
std::set<std::string> shown() {
  std::set<std::string> lines;
  for (const std::string& name : scenarios::names()) {
    for (std::string& line : scenarios::linesOf(scenarios::contentsOf(scenarios::file(name, ".golden")))) {
      if (!line.starts_with("> ")) lines.insert(std::move(line));
    }
  }
  return lines;
}

// Whether a line holds a text of the program: of an effect, or of a property that it writes or has.
bool tells(const std::string& line) {
  if (line.starts_with("set ") || line.starts_with("show ")) {
    const std::size_t dot = line.find('.');
    return dot != std::string::npos && std::ranges::any_of(kTellingProperties, [&](std::string_view property) {
             return line.compare(dot + 1, property.size(), property) == 0 && !line.ends_with(" \"\"");
           });
  }
  return std::ranges::any_of(kTelling, [&](std::string_view kind) { return line.starts_with(kind); });
}

// The forms in which a line may be listed: a call that fails has no result and a result may be nothing; what a property
// has may have been written to it.
Lines formsOf(const std::string& line) {
  static constexpr std::string_view kNothing = " =·";
  static constexpr std::string_view kShow = "show ";
  Lines all{line, line + " = ", line + " = ok"};
  if (line.ends_with(kNothing)) all.push_back(line.substr(0, line.size() - kNothing.size()) + " = ");
  if (line.starts_with(kShow)) all.push_back("set " + line.substr(kShow.size()));
  return all;
}

bool isText(const std::string& text, const std::string& line) {
  return std::ranges::any_of(formsOf(line),
                             [&](const std::string& form) { return headless::matchesWildcard(text, form); });
}

class ProgramTexts : public ::testing::Test {
 protected:
  const Lines texts_ = listed();
  const std::set<std::string> lines_ = shown();
};

TEST_F(ProgramTexts, EachIsShownBySomeScenario) {
  ASSERT_GT(texts_.size(), 300U);
  for (const std::string& text : texts_) {
    const bool isShown = std::ranges::any_of(lines_, [&](const std::string& line) { return isText(text, line); });
    EXPECT_TRUE(isShown) << "no scenario shows: " << text;
  }
}

TEST_F(ProgramTexts, NoScenarioShowsAnother) {
  for (const std::string& line : lines_) {
    if (!tells(line)) continue;
    const bool isListed = std::ranges::any_of(texts_, [&](const std::string& text) { return isText(text, line); });
    EXPECT_TRUE(isListed) << "not listed: " << line;
  }
}

TEST_F(ProgramTexts, EachIsListedOnce) { EXPECT_EQ(std::set(texts_.begin(), texts_.end()).size(), texts_.size()); }

}  // namespace

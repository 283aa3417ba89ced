#include <cstdlib>
#include <fstream>
#include <map>
#include <set>

#include "motor/language/function_table.h"
#include "motor/language/parsing/statement_table.h"
#include "motor/session/menu_commands.h"
#include "motor/session/session_fixture.h"
#include "motor/session/session_functions.h"
#include "text/file_text.h"

// docs/motor.md lists what the engine understands. It is written from the tables that the parser and the session go by:
// with VELDORIA_UPDATE_GOLDEN=1 in the environment it is written anew, else it has to be what they say.
namespace motor {
namespace {

const char* const kHead = R"(# What the engine understands

The statements, clauses, functions and codes of the embedded map engine. This page is written from the tables that the parser and the
session go by, and a test compares the two; after a change of those, `VELDORIA_UPDATE_GOLDEN=1 build/release/bin/motor_session_test
--gtest_filter='EngineManual*'` writes it anew.

- **Done**: the engine acts on it.
- **Passed over**: read to its end, checked for its form, and without effect. What of a text is passed over is told by name and place
  (`parseProgramWhole`, `Workspace::passedOver`).
- **Refused**: an error when it is run. The engine only reads: it writes no file, deletes none, starts no program and loads no code.

Anything else is an error with line, column and the word that was not understood, before the first statement of the text has run. Words are
written here as in the grammar; the engine takes them in any case. `...` stands for the clauses below a statement, which may come in any
order.
)";

// "set map" as "Set Map".
std::string titled(const std::string& words) {
  std::string result = words;
  bool first = true;
  for (char& c : result) {
    if (first && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    first = c == ' ' || c == '/';
  }
  return result;
}

std::string inCode(const std::string& text) {
  std::string result = "`";
  for (const char c : text) result += c == '|' ? std::string("\\|") : std::string(1, c);
  return result + "`";
}

std::string joined(const std::vector<std::string>& texts, const std::string& between) {
  std::string result;
  for (const std::string& text : texts) result += (result.empty() ? "" : between) + text;
  return result;
}

std::string listed(const ClauseEntries& entries, const std::string& within, Support support) {
  std::vector<std::string> words;
  for (const ClauseEntry& entry : entries) {
    if (entry.within == within && entry.support == support) words.push_back(titled(entry.words));
  }
  return joined(words, ", ");
}

std::string statementsDone() {
  std::string text =
      "\n## Statements that are done\n\n| statement | followed by | clauses done | clauses passed over "
      "|\n|---|---|---|---|\n";
  for (const StatementRule& rule : statementRules()) {
    const ClauseEntries entries = rule.clauses != nullptr ? rule.clauses() : ClauseEntries();
    std::vector<std::string> parts{""};
    for (const ClauseEntry& entry : entries) {
      if (std::find(parts.begin(), parts.end(), entry.within) == parts.end()) parts.push_back(entry.within);
    }
    for (const std::string& part : parts) {
      const std::string name = titled(rule.words) + (part.empty() ? "" : " ... " + titled(part));
      text += "| " + name + " | " + (part.empty() ? inCode(rule.form) : "") + " | " +
              listed(entries, part, Support::done) + " | " + listed(entries, part, Support::passedOver) + " |\n";
    }
  }
  return text + "\n`name = value` gives a variable of `Dim` its value.\n";
}

std::string statementsPassedOver() {
  std::vector<std::string> words;
  for (const PassedOverRule& rule : passedOverRules()) words.push_back(titled(rule.words));
  return "\n## Statements that are passed over\n\nWith all their clauses: " + joined(words, ", ") + ".\n";
}

std::string statementsRefused() {
  std::vector<std::string> reasons;
  std::map<std::string, std::vector<std::string>> words;
  for (const RefusedRule& rule : refusedRules()) {
    if (words[rule.reason].empty()) reasons.emplace_back(rule.reason);
    words[rule.reason].push_back(titled(rule.words));
  }
  std::string text = "\n## Statements that are refused\n\n| the user is told | statements |\n|---|---|\n";
  for (const std::string& reason : reasons) text += "| " + reason + " | " + joined(words[reason], ", ") + " |\n";
  return text + "\n`Run Application` with a compiled program or a program of the machine is refused too.\n";
}

std::string functions() {
  FunctionTable table = pureFunctions();
  std::map<std::string, std::pair<std::size_t, std::size_t>> counts;
  for (const auto& f : table.signatures()) counts[f.name] = {f.minimum, f.maximum};
  for (const auto& f : sessionFunctions()) counts[std::string(f.name)] = {f.minimum, f.maximum};
  std::vector<std::string> texts;
  for (const auto& [name, count] : counts) {
    const auto& [least, most] = count;
    texts.push_back(name + "(" + std::to_string(least) + (least == most ? "" : "-" + std::to_string(most)) + ")");
  }
  return "\n## Functions\n\nWith the number of their arguments: " + joined(texts, ", ") +
         ". In `Select` also the aggregates `Count(*)`, `Sum`, `Avg`, `Min`, `Max` and `WtAvg`.\n";
}

class EngineManual : public SessionTest {
 protected:
  // The codes that a function of an attribute's code knows.
  std::string codes(const std::string& before) {
    std::vector<std::string> known;
    for (int code = 0; code < 100; ++code) {
      const std::string expression = before + std::to_string(code) + ")";
      if (rejectedEval(expression).find("no hay ningún atributo") == std::string::npos)
        known.push_back(std::to_string(code));
    }
    return joined(known, ", ");
  }

  std::string attributes() {
    openYear();
    run("Select * From Provincias2001");
    EXPECT_EQ(eval("SearchPoint(FrontWindow(), -3, 41)"), "3");
    const std::pair<const char*, const char*> rows[] = {
        {"`WindowInfo` of a map", "WindowInfo(FrontWindow(),"},
        {"`WindowInfo` of a floating window (1001 to 1013)", "WindowInfo(1009,"},
        {"`MapperInfo`", "MapperInfo(FrontWindow(),"},
        {"`LayerInfo`", "LayerInfo(FrontWindow(),1,"},
        {"`TableInfo`", "TableInfo(Provincias2001,"},
        {"`SelectionInfo`", "SelectionInfo("},
        {"`SearchInfo`", "SearchInfo(1,"},
        {"`CommandInfo`", "CommandInfo("},
        {"`SessionInfo`", "SessionInfo("},
    };
    std::string text = "\n## Codes\n\n| of | codes |\n|---|---|\n";
    for (const auto& [name, before] : rows) text += std::string("| ") + name + " | " + codes(before) + " |\n";
    std::vector<std::string> commands;
    for (int code = 0; code < 3000; ++code) {
      if (knowsMenuCommand(code)) commands.push_back(std::to_string(code));
    }
    return text + "| `Run Menu Command` | " + joined(commands, ", ") + " |\n";
  }
};

TEST_F(EngineManual, isWhatTheTablesSay) {
  const std::string manual =
      kHead + statementsDone() + statementsPassedOver() + statementsRefused() + functions() + attributes();
  const std::filesystem::path file = std::filesystem::path(VELDORIA_DOCS) / "motor.md";
  if (std::getenv("VELDORIA_UPDATE_GOLDEN") != nullptr) std::ofstream(file, std::ios::binary) << manual;
  EXPECT_EQ(text::wholeFile(file).value_or("") == manual, true)
      << "docs/motor.md does not say what the tables say; write it anew as it tells.";
}

// A clause that an earlier one hides would stand in the manual and never be read.
TEST(EngineManualTables, haveNoRowThatCannotBeReached) {
  std::set<std::string> seen;
  for (const StatementRule& rule : statementRules()) EXPECT_TRUE(seen.insert(rule.words).second) << rule.words;
  for (const PassedOverRule& rule : passedOverRules()) EXPECT_TRUE(seen.insert(rule.words).second) << rule.words;
  for (const RefusedRule& rule : refusedRules()) EXPECT_TRUE(seen.insert(rule.words).second) << rule.words;
}

}  // namespace
}  // namespace motor

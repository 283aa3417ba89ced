#pragma once

#include <span>
#include <string>
#include <vector>

#include "motor/language/parsing/part_parsers.h"

// Clauses that may stand in any order: a table of them is what a parser goes by, and what the manual lists.
namespace motor {

// What the engine does about a clause that it reads; one that is incomplete is there to say what is missing.
enum class Support { done, passedOver, incomplete };

// A row of the manual.
struct ClauseEntry {
  std::string within;  // the words of what the clause stands in, inside its statement; mostly empty
  std::string words;
  Support support;
  bool operator==(const ClauseEntry&) const = default;
};
using ClauseEntries = std::vector<ClauseEntry>;

// A clause by the words it begins with (in lower case, a blank between two); `read` takes what follows them.
template <typename Part>
struct ClauseRule {
  const char* words;
  Support support;
  void (*read)(TokenStream& stream, Part& part);
  // What else has to be true where the words come next; null when nothing has.
  bool (*fits)(const TokenStream& stream) = nullptr;
};

// Reads the first clause of a table that comes next, and says whether there was one. Of two rules that fit, the one
// that stands first counts.
template <typename Part>
bool acceptClause(TokenStream& stream, std::span<const ClauseRule<Part>> rules, Part& part) {
  for (const ClauseRule<Part>& rule : rules) {
    const std::size_t words = stream.wordsNext(rule.words);
    if (words == 0 || (rule.fits != nullptr && !rule.fits(stream))) continue;
    if (rule.support != Support::passedOver) {
      stream.skip(words);
      rule.read(stream, part);
    } else {
      stream.passOver(stream.position(), rule.words);
      const TokenStream::Quiet quiet(stream);
      stream.skip(words);
      rule.read(stream, part);
    }
    return true;
  }
  return false;
}

// All clauses that come next; says whether there were any.
template <typename Part>
bool acceptClauses(TokenStream& stream, std::span<const ClauseRule<Part>> rules, Part& part) {
  bool any = false;
  while (acceptClause(stream, rules, part)) any = true;
  return any;
}

// The rows of the manual for a table.
template <typename Part>
void addEntries(ClauseEntries& entries, const std::string& within, std::span<const ClauseRule<Part>> rules) {
  for (const ClauseRule<Part>& rule : rules) {
    if (rule.support != Support::incomplete) entries.push_back({within, rule.words, rule.support});
  }
}

// The same where one table is all there is.
template <typename Part>
ClauseEntries entriesOf(const std::string& within, std::span<const ClauseRule<Part>> rules) {
  ClauseEntries entries;
  addEntries(entries, within, rules);
  return entries;
}

// What most clauses do with what follows their words.
template <typename Part>
void readNothing(TokenStream& /*stream*/, Part& /*part*/) {}
template <typename Part>
void ignoreSwitch(TokenStream& stream, Part& /*part*/) {
  static_cast<void>(parseSwitch(stream));
}
template <typename Part>
void ignoreExpression(TokenStream& stream, Part& /*part*/) {
  static_cast<void>(parseExpression(stream));
}
template <auto kField, typename Part>
void readSwitch(TokenStream& stream, Part& part) {
  part.*kField = parseSwitch(stream);
}
template <auto kField, typename Part>
void readExpression(TokenStream& stream, Part& part) {
  part.*kField = parseExpression(stream);
}
template <auto kField, bool value, typename Part>
void setTo(TokenStream& /*stream*/, Part& part) {
  part.*kField = value;
}

}  // namespace motor
